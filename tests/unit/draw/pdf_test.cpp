// A PDF: how large its pages are, that text can be taken out of it, and nothing of the time.

#include "pdfobjects.h"
#include "picture.h"
#include "samplestrip.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

/// What a program makes of the file on its standard input.
QString outputOf(const QString &program, const QStringList &arguments, const QByteArray &pdf)
{
    QProcess process;
    process.start(program, arguments);
    process.write(pdf);
    process.closeWriteChannel();
    if (!process.waitForFinished() || process.exitCode() != 0)
        return u"it failed: "_s + QString::fromUtf8(process.readAllStandardError());
    return QString::fromUtf8(process.readAllStandardOutput() + process.readAllStandardError());
}

/// "width height" of each page, in points.
QStringList pageSizes(const QByteArray &pdf)
{
    static const QRegularExpression box(u"/MediaBox \\[0 0 ([\\d.]+ [\\d.]+)\\]"_s);
    QStringList sizes;
    for (const QRegularExpressionMatch &match : box.globalMatch(QString::fromLatin1(pdf)))
        sizes += match.captured(1);
    return sizes;
}

QString widthOf(const Strip &strip)
{
    return pageSizes(pdfPicture({strip}, {})).value(0).section(u' ', 0, 0);
}

} // namespace

class PdfTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pagesAreAsWideAsPaper()
    {
        QCOMPARE(widthOf(paperStrip(24, {u"a"_s})), u"164.409"_s); // 58 mm
        QCOMPARE(widthOf(paperStrip(32, {u"a"_s})), u"164.409"_s);
        QCOMPARE(widthOf(paperStrip(33, {u"a"_s})), u"226.772"_s); // 80 mm
        QCOMPARE(widthOf(paperStrip(48, {u"a"_s})), u"226.772"_s);
        QCOMPARE(widthOf(paperStrip(64, {u"a"_s})), u"226.772"_s); // in smaller type
        QCOMPARE(widthOf({paper::StripKind::Register, 24, {}}), u"226.772"_s);
    }

    void pagesAreAsLongAsTheStrip()
    {
        // A column is 58 mm / 36, a row two of them; teeth and margins take another 5.
        const QByteArray pdf = pdfPicture({paperStrip(32, {u"a"_s}), paperStrip(32, {u"a"_s, u"b"_s})}, {});
        QCOMPARE(pageSizes(pdf), QStringList({u"164.409 31.969"_s, u"164.409 41.102"_s}));
    }

    void whatRunsOverWidensThePage()
    {
        // two columns of margin hold the first two characters that run over
        QCOMPARE(widthOf(paperStrip(32, {QString(34, u'a')})), u"164.409"_s);
        QCOMPARE(widthOf(paperStrip(32, {QString(36, u'a')})), u"173.543"_s);
    }

    void aLongStripIsTornIntoPages()
    {
        const QByteArray pdf = pdfPicture({paperStrip(32, QStringList(5000, u"row"_s))}, {});
        const QStringList sizes = pageSizes(pdf);
        QCOMPARE(sizes.size(), 4); // 1574 rows and the margins are 5.08 m
        for (const QString &size : sizes)
            QVERIFY2(size.section(u' ', 1, 1).toDouble() <= 14400, qPrintable(size));
        QCOMPARE(outputOf(u"pdftotext"_s, {u"-"_s, u"-"_s}, pdf).count(u"row"_s), 5000);
    }

    void textIsTakenOut_data()
    {
        QTest::addColumn<QString>("row");
        for (const char *row :
             {"Caffè 1,50 €", "日本酒", "שלום", "🍕🍝", "e\u0301a\u0300", "ﬁn", "µμΩΩ", "─┼─█", "\"quoted\""})
            QTest::newRow(row) << QString::fromUtf8(row);
    }
    void textIsTakenOut()
    {
        QFETCH(QString, row);
        QString words;
        static const QRegularExpression word(u"<word[^>]*>(.*)</word>"_s);
        const QString found =
            outputOf(u"pdftotext"_s, {u"-bbox"_s, u"-"_s, u"-"_s}, pdfPicture({paperStrip(32, {row})}, {}));
        for (const QRegularExpressionMatch &match : word.globalMatch(found))
            words += (words.isEmpty() ? u""_s : u" "_s) + match.captured(1);
        QCOMPARE(words.replace(u"&quot;"_s, u"\""_s), row);
    }

    void columnsLineUpInTheText()
    {
        const QStringList rows{u"  2 Caffè....  3,00"_s, u" 10 Acqua.... 15,00"_s, u"    SOMMA     18,00"_s};
        const QString width = QString::number(58 / 25.4 * 72 / 36); // of a column, in points
        const QString text = outputOf(u"pdftotext"_s, {u"-fixed"_s, width, u"-"_s, u"-"_s},
                                      pdfPicture({paperStrip(32, rows)}, {}));
        for (const QString &row : rows)
            QVERIFY2(text.contains("  "_L1 + row + u'\n'), qPrintable(text)); // behind the margin
    }

    void boldIsADifferentPicture()
    {
        Strip strip = paperStrip(32, {u"m"_s});
        const qsizetype plain = pdfPicture({strip}, {}).size();
        strip.lines.push_back(plainRow(u"m"_s, {.bold = true}));
        const QByteArray both = pdfPicture({strip}, {});
        QVERIFY(both.size() > plain + 200);
        QCOMPARE(outputOf(u"pdftotext"_s, {u"-"_s, u"-"_s}, both).count(u'm'), 2);
    }

    void moreCharactersThanAFontHas()
    {
        QString row;
        for (int i = 0; i < 600; ++i)
            row += QChar(0x4e00 + i);
        const QByteArray pdf = pdfPicture({paperStrip(32, {row})}, {});
        QString found = outputOf(u"pdftotext"_s, {u"-raw"_s, u"-"_s, u"-"_s}, pdf);
        QCOMPARE(found.remove(QRegularExpression(u"\\s"_s)), row);
    }

    void readersFindNothingWrong()
    {
        Strip strip = paperStrip(32, {u"Caffè"_s, QString(50, u'x'), u"日"_s});
        strip.lines.push_back(paper::Event::Cut);
        const QByteArray pdf = pdfPicture({strip}, {.marks = true, .title = u"Però"_s});
        const QString told = outputOf(u"pdfinfo"_s, {u"-"_s}, pdf);
        QVERIFY2(told.contains(u"Title:           Però"_s), qPrintable(told));
        QVERIFY2(!told.contains(u"Error"_s), qPrintable(told));
        QVERIFY2(!told.contains(u"Date"_s), qPrintable(told));
    }

    void numbers_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("zero") << 0.0 << QByteArray("0");
        QTest::newRow("whole") << 12.0 << QByteArray("12");
        QTest::newRow("decimals") << 12.25 << QByteArray("12.25");
        QTest::newRow("rounded") << 1.0 / 3 << QByteArray("0.333");
        QTest::newRow("zeros behind the point") << 1.004 << QByteArray("1.004");
        QTest::newRow("negative") << -0.5 << QByteArray("-0.5");
        QTest::newRow("no negative zero") << -0.0001 << QByteArray("0");
    }
    void numbers()
    {
        QFETCH(double, value);
        QTEST(PdfObjects::number(value), "text");
    }

    void theSameRowsAreTheSameBytes()
    {
        const std::vector<Strip> strips{paperStrip(32, {u"Caffè"_s, u"日本 שלום 🍕"_s})};
        const QByteArray first = pdfPicture(strips, {});
        QTest::qWait(1100); // another second
        QCOMPARE(pdfPicture(strips, {}), first);
    }
};

QTEST_MAIN(PdfTest)
#include "pdf_test.moc"
