#include "decoder.h"
#include "escposbytes.h"
#include "paperrecord.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

PaperRecord shown(const QByteArray &bytes, const char *profile = "58mm",
                  Decoder::Width width = Decoder::Width::OfPaper)
{
    PaperRecord record;
    Decoder decoder(record, *findProfile(QString::fromLatin1(profile)), width);
    decoder.take(bytes);
    decoder.end();
    if (record.openStrips != 0)
        qFatal("a strip was not ended");
    return record;
}

} // namespace

class DecoderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shows_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("lines");
        const auto add = [](const char *name, const char *bytes, const QStringList &lines) {
            QTest::newRow(name) << escpos(bytes) << lines;
        };
        add("nothing", "", {});
        add("rows", "'one' 0A 0A 'two' 0D0A", {u"|one|"_s, u"||"_s, u"|two|"_s});
        add("styles",
            "1B4501 'b' 1D2101 'h' 1D2110 'w' 1D2111 'x' 1D2100 1B4500 1B2D01 'u' 1B2D00 1D4201 'i' 0A",
            {u"|<b>b<bh>h<bw>w<bhw>x<u>u<i>i|"_s});
        add("digits for numbers", "1B4531 'b' 1B4530 1B2D31 'u' 1B2D30 'n' 0A", {u"|<b>b<u>u<>n|"_s});
        add("the old print mode", "1B21B9 'a' 1B2100 'b' 0A", {u"|<bhwu>a<>b|"_s});
        add("code pages", "1B7400 8A 1B7413 D5 1B7412 88 1B7410 9C 1B7411 80 0A", {u"|è€łœА|"_s});
        add("a page that nobody knows", "1B7463 8A 0A",
            {u"! unknown code page 99 at byte 0: letters are shown in CP437"_s, u"|è|"_s});
        add("a byte without a character", "1B7410 81 0A", {u"|\uFFFD|"_s});
        add("centred", "1B6101 'ab' 0A 1B6100 'ab' 0A", {u"|               ab|"_s, u"|ab|"_s});
        add("right, and large", "1B6102 1D2111 'ab' 0A", {u"|                            <hw>ab|"_s});
        add("justified in the middle of a row", "'ab' 1B6101 0A", {u"|ab|"_s});
        add("as wide as the paper", "'0123456789012345678901234567890123' 0A",
            {u"|01234567890123456789012345678901|"_s, u"|23|"_s});
        add("narrow letters", "1B4D01 '012345678901234567890123456789012345678901x' 0A",
            {u"narrow |012345678901234567890123456789012345678901|"_s, u"narrow |x|"_s});
        add("tab stops and places", "'a' 09 'b' 0A 1B240C00 'c' 1B5C0C00 'd' 0A",
            {u"|a       b|"_s, u"| c d|"_s});
        add("feeds", "'a' 1B6402 'b' 1B6400 1B4A30 1B6401",
            {u"|a|"_s, u"||"_s, u"|b|"_s, u"||"_s, u"||"_s, u"||"_s});
        add("every cut", "1D5600 1D5601 1D5630 1D5631 1D564100 1D564210 1B69 1B6D",
            QStringList(u"-- cut"_s).toList() + QList<QString>(7, u"-- cut"_s));
        add("a cut ends the row", "'a' 1D5600", {u"|a|"_s, u"-- cut"_s});
        add("drawer", "1B700019FA 1014010001", {u"-- drawer"_s, u"-- drawer"_s});
        add("an unknown command", "'ab' 0A 1D7A 'c' 0A",
            {u"|ab|"_s, u"! unknown command 1D 7A at byte 3, skipped"_s, u"|c|"_s});
        add("control characters", "01 7F 1F",
            {u"! unknown command 01 at byte 0, skipped"_s, u"! unknown command 7F at byte 1, skipped"_s,
             u"! unknown command 1F at byte 2, skipped"_s});
        add("commands of their own", "1B2841 0200 0102 1D2841 0200 0102 'a' 0A",
            {u"! 1B 28 41 02 00 at byte 0 is not shown"_s, u"|a|"_s});
        add("an unfinished row", "'a'", {u"! the last row is not ended, so the printer keeps it"_s});
        add("a row dropped", "'a' 1B40 'b' 0A",
            {u"! a row was begun and not ended: the printer drops it"_s, u"|b|"_s});
        add("initialised", "1B7413 1B4D01 1B4501 1D2111 1B6101 1B40 D5 0A", {u"|╒|"_s});
        add("a torn command", "'a' 0A 1B45",
            {u"|a|"_s, u"! the stream ends in the middle of command 1B 45 at byte 2"_s});
        add("a torn picture", "1D763000 0100 0200 FF",
            {u"! the stream ends in the middle of command 1D 76 30 00 01 00 02 00 at byte 0"_s,
             u"picture 8 x 1 at 0"_s});
        add("Chinese mode", "1C26 8A8A 1C2E 8A 0A",
            {u"! Chinese mode from byte 0 on: accents are lost in it"_s, u"|\uFFFD\uFFFDè|"_s});
        add("a picture", "1D763000 0100 0200 FF81", {u"picture 8 x 2 at 0"_s});
        add("a picture in the middle", "1B6101 1D763000 0100 0100 FF 'a' 0A",
            {u"picture 8 x 1 at 188"_s, u"|               a|"_s});
        add("twice as wide and high", "1D763003 0100 0100 FF", {u"picture 16 x 2 at 0"_s});
        add("pictures that join", "1D763000 0100 0100 FF 1D763000 0100 0100 FF 1D763000 0200 0100 FFFF",
            {u"picture 8 x 2 at 0"_s, u"picture 16 x 1 at 0"_s});
        add("a picture without dots", "1D763000 0000 FFFF 'a' 0A", {u"|a|"_s});
        add("a picture by columns", "1B2A21 0200 800000 000001 0A 'a' 0A",
            {u"picture 2 x 24 at 0"_s, u"|a|"_s});
        add("by columns of eight dots", "1B2A00 0100 80 0A", {u"picture 2 x 24 at 0"_s});
        add("graphics", "1D284C 0C00 3070 30 01 01 31 0800 0200 FF81 1D284C 0200 3032",
            {u"picture 8 x 2 at 0"_s});
        add("graphics that lie", "1D284C 0B00 3070 30 01 01 31 0800 FFFF FF 1D284C 0200 3032", {});
        add("the printer's own logo", "1C700100", {u"! picture 1 of the printer's memory"_s});
        add("bar codes", "1D6B02 '4006381333931' 00 1D6B49 03 '{BA'",
            {u"! bar code EAN-13 of \"4006381333931\", not drawn"_s,
             u"! bar code Code 128 of \"{BA\", not drawn"_s});
        add("another code", "1D286B 0300 30 52 30", {u"! 1D 28 6B 03 00 at byte 0 is not shown"_s});
        add("a QR code",
            "1D286B 0400 3141 3200 1D286B 0300 3143 02 1D286B 0300 3145 30 1D286B 0500 3150 30 'Hi' "
            "1D286B 0300 3151 30",
            {u"picture 42 x 24 at 0"_s, u"picture 42 x 18 at 0"_s, u"! QR code of \"Hi\""_s});
        const QByteArray wide = escpos("1D286B 0300 314310 1D286B 3F00 315030") + QByteArray(60, 'x') +
                                escpos("1D286B 0300 315130");
        QTest::newRow("a QR code wider than the paper")
            << wide << QStringList(u"! a QR code wider than the paper, which the printer leaves out"_s);
        add("a QR code of nothing", "1D286B 0300 3151 30", {u"! a QR code without a text that fits"_s});
    }
    void shows()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QStringList, lines);
        QCOMPARE(shown(bytes).lines.join(u'\n'), lines.join(u'\n'));
    }

    void piecesOfAnySizeShowTheSame()
    {
        const QByteArray bytes =
            escpos("1B40 1B6101 'a' 0A 1D763000 0200 0300 010203040506 1D6B02 '12' 00 1D7A 'b' 0A");
        PaperRecord record;
        Decoder decoder(record, usualProfile, Decoder::Width::Any);
        for (const char byte : bytes)
            decoder.take(QByteArrayView(&byte, 1));
        decoder.end();
        QCOMPARE(record.lines, shown(bytes, "80mm", Decoder::Width::Any).lines);
        QCOMPARE(record.strips, 1);
    }

    void rowsOfAnyWidth()
    {
        const QByteArray row(500, 'x');
        const PaperRecord record = shown(row + '\n', "58mm", Decoder::Width::Any);
        QCOMPARE(record.lines, QStringList(u'|' + QString(500, u'x') + u'|'));
    }

    void dotsOfAPicture()
    {
        const paper::Picture raster = shown(escpos("1D763000 0100 0300 80 01 AA")).lastPicture;
        QCOMPARE(raster.dots, escpos("80 01 AA"));
        const paper::Picture doubled = shown(escpos("1D763001 0100 0100 81")).lastPicture;
        QCOMPARE(doubled.dots, escpos("C003"));
        const paper::Picture columns = shown(escpos("1B2A21 0200 800000 000001")).lastPicture;
        QVERIFY(columns.isBlack(0, 0) && columns.isBlack(1, 23));
        QVERIFY(!columns.isBlack(1, 0) && !columns.isBlack(0, 23) && !columns.isBlack(2, 0));
    }

    void aQrCodeHasItsCorners()
    {
        const QByteArray bytes = escpos("1D286B 0300 3143 01 1D286B 0500 3150 30 'Hi' 1D286B 0300 3151 30");
        const paper::Picture code = shown(bytes).lastPicture;
        QCOMPARE(code.width, 21);
        QCOMPARE(code.height, 21);
        const auto isCorner = [&](int x, int y) {
            return code.isBlack(x, y) && code.isBlack(x + 6, y + 6) && code.isBlack(x + 3, y + 3) &&
                   !code.isBlack(x + 1, y + 1) && !code.isBlack(x + 5, y + 5);
        };
        QVERIFY(isCorner(0, 0) && isCorner(14, 0) && isCorner(0, 14) && !isCorner(14, 14));
    }

    void aLongStreamWithoutALineEndIsBroken()
    {
        const PaperRecord record = shown(QByteArray(250'000, 'x') + '\n', "58mm", Decoder::Width::Any);
        QCOMPARE(record.lines.size(), 3);
        QCOMPARE(record.lines.first().size(), 100'002);
    }
};

QTEST_GUILESS_MAIN(DecoderTest)
#include "decoder_test.moc"
