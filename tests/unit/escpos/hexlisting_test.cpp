#include "escposbytes.h"
#include "hexlisting.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList listed(const QByteArray &bytes, qsizetype pieceSize = 1000)
{
    QStringList lines;
    HexListing listing([&](const QString &line) { lines += line; });
    for (qsizetype i = 0; i < bytes.size(); i += pieceSize)
        listing.take(bytes.mid(i, pieceSize));
    listing.end();
    return lines;
}

} // namespace

class HexListingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aLineForEachCommand()
    {
        const QByteArray bytes = escpos(
            "1B40 1C2E 1B7413 1B5200 1B4501 1D2111 'Two ' D5 ', and a long text' 0A 1D564200 1D7A 1B45");
        const QStringList expected = {
            u"00000000  1B 40                                            initialise"_s,
            u"00000002  1C 2E                                            leave Chinese mode"_s,
            u"00000004  1B 74 13                                         code page 19, CP858"_s,
            u"00000007  1B 52 00                                         international characters: USA"_s,
            u"0000000A  1B 45 01                                         bold on"_s,
            u"0000000D  1D 21 11                                         size: 2 wide, 2 high"_s,
            u"00000010  54 77 6F 20 D5 2C 20 61 6E 64 20 61 20 6C 6F 6E  \"Two €, and a lon\""_s,
            u"00000020  67 20 74 65 78 74                                \"g text\""_s,
            u"00000026  0A                                               end of the row"_s,
            u"00000027  1D 56 42 00                                      feed to the cutter and 0 dots, then cut, but for a bridge"_s,
            u"0000002B  1D 7A                                            unknown command, skipped"_s,
            u"0000002D  1B 45                                            the stream ends in the middle of this command"_s,
        };
        QCOMPARE(listed(bytes).join(u'\n'), expected.join(u'\n'));
        QCOMPARE(listed(bytes, 1), listed(bytes));
    }

    void textIsWhatThePrinterPrints()
    {
        const QStringList expected = {
            u"00000000  1B 52 02                                         international characters: Germany"_s,
            u"00000003  7B                                               \"ä\""_s,
            u"00000004  1B 52 63                                         international characters 99"_s,
            u"00000007  7B                                               \"ä\""_s,
            u"00000008  1B 40                                            initialise"_s,
            u"0000000A  7B                                               \"{\""_s,
        };
        QCOMPARE(listed(escpos("1B5202 '{' 1B5263 '{' 1B40 '{'")).join(u'\n'), expected.join(u'\n'));
    }

    void dataStandsBehindItsCommand()
    {
        const QStringList expected = {
            u"00000000  1D 76 30 00 02 00 01 00                          picture, 16 x 1 dots"_s,
            u"00000008  FF 01                                            data"_s,
            u"0000000A  1D 6B 02                                         bar code EAN-13"_s,
            u"0000000D  31 32 00                                         data"_s,
            u"00000010  61                                               \"a\""_s,
        };
        QCOMPARE(listed(escpos("1D763000 0200 0100 FF01 1D6B02 '12' 00 'a'")).join(u'\n'),
                 expected.join(u'\n'));
    }

    void everyByteIsListedOnce()
    {
        QByteArray bytes;
        for (int i = 0; i < 5000; ++i)
            bytes += char(i * i * 7 + i / 3);
        qint64 place = 0;
        for (const QString &line : listed(bytes)) {
            QCOMPARE(line.first(8).toLongLong(nullptr, 16), place);
            const QByteArray listedBytes = QByteArray::fromHex(line.mid(10, 48).toLatin1());
            QCOMPARE(listedBytes, bytes.mid(place, listedBytes.size()));
            place += listedBytes.size();
        }
        QCOMPARE(place, bytes.size());
    }
};

QTEST_GUILESS_MAIN(HexListingTest)
#include "hexlisting_test.moc"
