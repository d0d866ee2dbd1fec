#include "escposbytes.h"
#include "logo.h"
#include "scratchfolder.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class LogoTest : public QObject
{
    Q_OBJECT

private:
    const ScratchFolder folder{};

    Logo read(const QByteArray &content, int maxWidth = 384) const
    {
        return readLogo(folder.write(u"logo.pbm"_s, content), maxWidth);
    }

private Q_SLOTS:
    void plainAndRawFilesGiveTheSameDots_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("plain") << QByteArray("P1\n10 2\n1 0 1 0 0 1 0 1 0 1\n0000000110 # done\n");
        QTest::newRow("plain, dense") << QByteArray("P1 10 # wide\n#\n2 10100101010000000110");
        QTest::newRow("raw") << "P4\n10 2\n" + escpos("A540 0180");
        QTest::newRow("raw, and more") << "P4 # a\n10\t2 " + escpos("A540 0180") + "more";
    }
    void plainAndRawFilesGiveTheSameDots()
    {
        QFETCH(QByteArray, content);
        const Logo logo = read(content);
        QCOMPARE(logo.trouble, QString());
        QCOMPARE(logo.picture.width, 10);
        QCOMPARE(logo.picture.height, 2);
        QCOMPARE(logo.picture.dots, escpos("A540 0180"));
        QCOMPARE(rasterCommands(logo.picture), escpos("1D7630 00 0200 0100 A540 1D7630 00 0200 0100 0180"));
    }

    void whatIsNoLogo_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("trouble");
        QTest::newRow("nothing") << QByteArray()
                                 << u"is no PBM picture: save it in that format, in two colours"_s;
        QTest::newRow("grey") << QByteArray("P5 1 1 255 x")
                              << u"is no PBM picture: save it in that format, in two colours"_s;
        QTest::newRow("no size") << QByteArray("P4 ") << u"does not tell its size"_s;
        QTest::newRow("half a size") << QByteArray("P4 10") << u"does not tell its size"_s;
        QTest::newRow("no number") << QByteArray("P4 ten 2") << u"does not tell its size"_s;
        QTest::newRow("huge") << QByteArray("P4 99999999999999999999 1") << u"does not tell its size"_s;
        QTest::newRow("empty") << QByteArray("P4 0 5 ") << u"does not tell its size"_s;
        QTest::newRow("wide") << QByteArray("P4 385 1 ")
                              << u"is 385 x 1 dots; this printer prints 384 x 2000 at most"_s;
        QTest::newRow("high") << QByteArray("P4 1 2001 ")
                              << u"is 1 x 2001 dots; this printer prints 384 x 2000 at most"_s;
        QTest::newRow("short") << QByteArray("P4 16 2 abc") << u"ends before its last dot"_s;
        QTest::newRow("short plain") << QByteArray("P1 2 2 101") << u"ends before its last dot"_s;
        QTest::newRow("odd plain") << QByteArray("P1 2 2 1021") << u"ends before its last dot"_s;
    }
    void whatIsNoLogo()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, trouble);
        const Logo logo = read(content);
        QCOMPARE(logo.trouble, u"the logo \"%1\" %2"_s.arg(folder.path(u"logo.pbm"_s), trouble));
        QVERIFY(rasterCommands(logo.picture).isEmpty());
    }

    void aFolderIsNoLogo()
    {
        QVERIFY(readLogo(folder.path(), 384).trouble.startsWith(u"the logo \"%1\" "_s.arg(folder.path())));
    }
};

QTEST_GUILESS_MAIN(LogoTest)
#include "logo_test.moc"
