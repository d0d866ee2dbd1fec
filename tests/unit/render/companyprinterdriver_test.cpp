#include "testprinter.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class CompanyPrinterDriverTest : public QObject
{
    Q_OBJECT

private:
    const TemporaryHome home;

private Q_SLOTS:
    void initTestCase() { home.configure("palvestrin: { };"); }

    void aSectionOfTwoLines()
    {
        QCOMPARE(printed([](TestPrinter &printer) {
                     printer.startSection();
                     printer.println(u"HELLO"_s);
                     printer.println(u"WORLD"_s);
                     printer.endSection();
                 }),
                 QByteArray("\nj\n\"HELLO\"@\n\"WORLD\"@\nJ\n"));
    }

    void fiscalSectionsHaveNoBrackets()
    {
        for (const QString &method : {u"printFullOrderFiscal"_s, u"printAbstractOrderFiscal"_s}) {
            QCOMPARE(printed([&](TestPrinter &printer) {
                         printer.currentMethod = method;
                         printer.startSection();
                         printer.endSection();
                     }),
                     QByteArray("\n"));
        }
    }

    void aLineBeforeAnySectionLacksItsQuote()
    {
        QCOMPARE(printed([](TestPrinter &printer) {
                     printer.currentMethod = u"printFullOrderFiscal"_s;
                     printer.startSection();
                     printer.println(u"one"_s);
                     printer.println(u"two"_s);
                 }),
                 QByteArray("\none\"@\n\"two\"@\n"));
    }

    void aNewSectionDropsTheLineBegun()
    {
        QCOMPARE(printed([](TestPrinter &printer) {
                     printer.startSection();
                     printer.print(0, u"lost"_s);
                     printer.startSection();
                     printer.println(u"kept"_s);
                     printer.print(0, u"lost too"_s);
                 }),
                 QByteArray("\nj\n\nj\n\"kept\"@\n"));
    }

    void indentsAreBlanks()
    {
        QCOMPARE(printed([](TestPrinter &printer) {
                     printer.startSection();
                     printer.print(3, u"ab"_s);
                     printer.println(0, u"c"_s);
                     printer.println(2, u"d"_s);
                 }),
                 QByteArray("\nj\n\"   abc\"@\n\"  d\"@\n"));
    }

    void theWordTotaleNeverReachesThePaper()
    {
        QCOMPARE(printed([](TestPrinter &printer) {
                     printer.startSection();
                     printer.println(u"TOTALE EURO"_s);
                     printer.println(u"totale Totale TOTALETOTALE TOTAL"_s);
                     printer.print(0, u"TOT"_s);
                     printer.println(u"ALE"_s); // each text on its own
                 }),
                 QByteArray("\nj\n\"SOMMA EURO\"@\n\"totale Totale SOMMASOMMA TOTAL\"@\n\"TOTALE\"@\n"));
    }

    void centring_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("blanks");
        QTest::newRow("four") << u"ABCD"_s << 15;
        QTest::newRow("as wide as the paper") << QString(32, u'x') << 1;
        QTest::newRow("empty") << QString() << 17;
        QTest::newRow("odd") << u"ABC"_s << 16;
        QTest::newRow("33") << QString(33, u'x') << 1;
        QTest::newRow("34") << QString(34, u'x') << 0;
        QTest::newRow("35, the last that the formula takes") << QString(35, u'x') << 0;
        QTest::newRow("36, negative") << QString(36, u'x') << 0;
        QTest::newRow("far too long") << QString(1000, u'x') << 0;
        QTest::newRow("outside the basic plane") << u"\U0001F355\U0001F355\U0001F355\U0001F355"_s << 15;
        QTest::newRow("after the substitution") << u"TOTALE"_s << 15;
    }
    void centring()
    {
        QFETCH(QString, text);
        QFETCH(int, blanks);
        const QByteArray output = printed([&](TestPrinter &printer) {
            printer.startSection();
            printer.setCenterJustify();
            printer.println(text);
        });
        QString onPaper = text == "TOTALE"_L1 ? u"SOMMA"_s : text;
        QCOMPARE(output, "\nj\n\"" + QByteArray(blanks, ' ') + onPaper.toUtf8() + "\"@\n");
    }

    void centringLastsUntilASizeIsSet()
    {
        QCOMPARE(printed([](TestPrinter &printer) {
                     printer.startSection();
                     printer.setCenterJustify();
                     printer.println(u"1234567890123456789012345678"_s);
                     printer.setBold();
                     printer.println(u"1234567890123456789012345678"_s);
                     printer.setCharSize(2);
                     printer.println(u"1234567890123456789012345678"_s);
                     printer.setCenterJustify();
                     printer.setCharSize();
                     printer.println(u"1234567890123456789012345678"_s);
                 }),
                 QByteArray("\nj\n"
                            "\"   1234567890123456789012345678\"@\n"
                            "\"   1234567890123456789012345678\"@\n"
                            "\"1234567890123456789012345678\"@\n"
                            "\"1234567890123456789012345678\"@\n"));
    }

    void operationsThatPrintNothing()
    {
        QCOMPARE(printed([](TestPrinter &printer) {
                     printer.setBold();
                     printer.fullCut();
                     printer.generatePulse();
                     printer.printLogo();
                     printer.reset();
                     printer.initPrinter();
                     printer.print(1, u"never ended"_s);
                 }),
                 QByteArray());
    }
};

QTEST_GUILESS_MAIN(CompanyPrinterDriverTest)
#include "companyprinterdriver_test.moc"
