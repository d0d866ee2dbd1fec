// Bytes as other programs make them, typed in by hand from the command reference: what they print is known
// without the decoder.

#include "decoder.h"
#include "escposbytes.h"
#include "paperrecord.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

QString shown(const char *bytes, const char *profile = "58mm")
{
    PaperRecord record;
    Decoder decoder(record, *findProfile(QString::fromLatin1(profile)), Decoder::Width::OfPaper);
    decoder.take(escpos(bytes));
    decoder.end();
    return record.lines.join(u'\n');
}

} // namespace

class OtherEncodersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTillThatSetsModesInOneByte()
    {
        QCOMPARE(shown("1B40 1B7410 1B6101 1B2138 'CAF' C9 0A 1B2100 '12 rue du B' 9C 'uf' 0D0A 1B6100"
                       "'--------------------------------' 0D0A '1 Cr' E8 'me    3,50 ' 80 0D0A"
                       "1B2180 'TOTAL' 1B2100 '      3,50 ' 80 0D0A 1B6403 1D5601 1B70001E FF"),
                 u"|            <bhw>CAFÉ|\n"
                 "|         12 rue du Bœuf|\n"
                 "|--------------------------------|\n"
                 "|1 Crème    3,50 €|\n"
                 "|<u>TOTAL<>      3,50 €|\n"
                 "||\n||\n||\n"
                 "-- cut\n"
                 "-- drawer"_s);
    }

    void aKitchenThatNeverInitialises()
    {
        QCOMPARE(
            shown("'Tisch 7' 0A 1D2111 '2x Br' 81 'he' 0A 1D2100 C9 CD CD BB 0A BA 20 20 BA 0A C8 CD CD BC 0A"
                  "1D42 01 ' EILT ' 1D42 00 0A 1B69"),
            u"|Tisch 7|\n|<hw>2x Brühe|\n|╔══╗|\n|║  ║|\n|╚══╝|\n|<i> EILT |\n-- cut"_s);
    }

    void anEncoderThatAsksForTheStateInBetween()
    {
        QCOMPARE(shown("10 04 01 1B40 1D 61 0F 'a' 10 04 04 'b' 1D 72 01 0A"
                       "1D 28 48 06 00 30 30 41 42 43 44 1B 42 03 02"),
                 u"|ab|"_s);
    }

    void columnsByTabStops()
    {
        QCOMPARE(shown("1B44 04 14 1A 00 '2' 09 'Tea' 09 '1.20' 09 '2.40' 0A 1B2D01 'x' 09 'y' 1B2D00 0A"
                       "1B44 00 'a' 09 'b' 0A 1B40 'a' 09 'b' 0A"),
                 u"|2   Tea             1.20  2.40|\n|<u>x<>   <u>y|\n|ab|\n|a       b|"_s);
    }

    void tabStopsThatDoNotRiseEndTheList()
    {
        QCOMPARE(shown("1B44 08 04 18 00 'a' 09 'b' 09 'c' 0A"), u"|a       bc|"_s);
    }

    void nationalCharacters()
    {
        QCOMPARE(
            shown(
                "1B5202 '{|}[\\]~@' 0A 1B5206 '[]^`{|}~' 0A 1B5203 '#1' 0A 1B5207 '#[|' 0A 1B5200 '[#$' 0A"),
            u"|äöüÄÖÜß§|\n|°é^ùàòèì|\n|£1|\n|₧¡ñ|\n|[#$|"_s);
        QCOMPARE(shown("1B5202 '{' 1B40 '{' 0A"),
                 u"! a row was begun and not ended: the printer drops it\n|{|"_s);
        QCOMPARE(shown("1B5263 '{' 0A"), u"! 1B 52 63 at byte 0 is not shown\n|{|"_s);
    }

    void marginsAndPrintArea()
    {
        // 24 dots are two columns; 120 dots are ten.
        QCOMPARE(shown("1D4C1800 1D577800 '0123456789ab' 0A 1B6101 'mid' 0A 1B6102 'right' 0A"
                       "1D763000 0100 0100 FF"),
                 u"|  0123456789|\n|  ab|\n|     mid|\n|       right|\npicture 8 x 1 at 136"_s);
        QCOMPARE(shown("'a' 1D4C1800 1D570C00 'b' 0A"), u"|ab|"_s); // in the middle of a row
        QCOMPARE(shown("1D4CFFFF 'ab' 0A"), u"|                                a|\n"
                                            "|                                b|"_s);
    }

    void aPictureInBandsOfColumns()
    {
        QCOMPARE(
            shown(
                "1B3318 1B2A21 0300 FF0000 00FF00 0000FF 0A 1B2A21 0300 FF0000 00FF00 0000FF 0A 1B32 'x' 0A"),
            u"picture 3 x 24 at 0\npicture 3 x 24 at 0\n|x|"_s);
    }

    void aCentredQrCode()
    {
        QCOMPARE(shown("1B6101 1D286B 0400 31 41 32 00 1D286B 0300 31 43 04 1D286B 0300 31 45 31"
                       "1D286B 0D00 31 50 30 'http://a.b' 1D286B 0300 31 51 30 0A 'thanks' 0A"),
                 u"picture 84 x 24 at 150\npicture 84 x 24 at 150\npicture 84 x 24 at 150\n"
                 "picture 84 x 12 at 150\n! QR code of \"http://a.b\"\n||\n|             thanks|"_s);
    }

    void textInTheEncodingOfAWebPagePrintsAsThePrinterTakesIt()
    {
        QCOMPARE(shown("1B40 'Caff' C3 A8 ' 2 ' E2 82 AC 0A"), u"|Caff├¿ 2 Γé¼|"_s);
    }

    void whatChangesTheLookAndIsNotShownIsTold()
    {
        QCOMPARE(shown("1B7B01 'a' 0A 1B7B00 1B5601 1B5600 1B2003 1B2000 1B7201 1B7230"),
                 u"! 1B 7B 01 at byte 0 is not shown\n|a|\n! 1B 56 01 at byte 8 is not shown\n"
                 "! 1B 20 03 at byte 14 is not shown\n! 1B 72 01 at byte 20 is not shown"_s);
        QCOMPARE(shown("1B4C 1B57 00000000 8001 C800 1B5400 1D242000 'a' 0A 1B0C 1B53"),
                 u"! 1B 4C at byte 0 is not shown\n|a|\n||"_s);
    }
};

QTEST_GUILESS_MAIN(OtherEncodersTest)
#include "otherencoders_test.moc"
