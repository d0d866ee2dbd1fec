#include "testprinter.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class FiscalRegisterTest : public QObject
{
    Q_OBJECT

private:
    const TemporaryHome home;

    static QByteArray closing(const QList<std::pair<QString, QString>> &attributes,
                              const QString &name = u"total"_s)
    {
        QXmlAttributes list;
        for (const auto &[attribute, value] : attributes)
            list.append(attribute, QString(), attribute, value);
        return printed([&](TestPrinter &printer) { printer.printRowFiscal(name, list); });
    }

private Q_SLOTS:
    void initTestCase() { home.configure("palvestrin: { };"); }

    void sales_data()
    {
        QTest::addColumn<QString>("price");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("comma") << u"6,50"_s << QByteArray("\"PIZZA\"3*650H2R\r\n");
        QTest::newRow("zero") << u"0"_s << QByteArray("\"PIZZA\"3*0H2R\r\n");
        QTest::newRow("missing") << QString() << QByteArray("\"PIZZA\"3*0H2R\r\n");
        QTest::newRow("word") << u"free"_s << QByteArray("\"PIZZA\"3*0H2R\r\n");
        QTest::newRow("not a number") << u"nan"_s << QByteArray("\"PIZZA\"3*nanH2R\r\n");
        QTest::newRow("half a cent") << u"12,345"_s << QByteArray("\"PIZZA\"3*1234.5H2R\r\n");
        QTest::newRow("refund") << u"-1.50"_s << QByteArray("=150H4M\r\n");
        QTest::newRow("tiny refund") << u"-0,001"_s << QByteArray("=0.1H4M\r\n");
    }
    void sales()
    {
        QFETCH(QString, price);
        QTEST(
            printed([&](TestPrinter &printer) { printer.printRowFiscal(u"2"_s, u"3"_s, u"PIZZA"_s, price); }),
            "expected");
    }

    void modifiers_data()
    {
        QTest::addColumn<QString>("price");
        QTest::addColumn<QString>("modifier");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("less") << u"1.00"_s << u"-10"_s << QByteArray("\"WATER\"2*100H1R-10*5M\r\n");
        QTest::newRow("more, with a comma")
            << u"1.00"_s << u"5,5"_s << QByteArray("\"WATER\"2*100H1R5.5*1M\r\n");
        QTest::newRow("empty") << u"1.00"_s << QString() << QByteArray("\"WATER\"2*100H1R*1M\r\n");
        QTest::newRow("a negative price keeps its sign")
            << u"-1.00"_s << u"5"_s << QByteArray("\"WATER\"2*-100H1R5*1M\r\n");
    }
    void modifiers()
    {
        QFETCH(QString, price);
        QFETCH(QString, modifier);
        QTEST(printed([&](TestPrinter &printer) {
                  printer.printRowFiscal(u"1"_s, u"2"_s, u"WATER"_s, price, modifier);
              }),
              "expected");
    }

    void everyKindOfPayment()
    {
        QCOMPARE(closing({{u"price"_s, u"20.00"_s},
                          {u"creditCard"_s, u"5.00"_s},
                          {u"notPaid"_s, u"2.00"_s},
                          {u"discountRate"_s, u"10"_s}}),
                 QByteArray("=10* 2M\n1800H1T\n500H3T\n200H5T\n"));
        QCOMPARE(closing({{u"price"_s, u"20"_s}, {u"cheque"_s, u"5,5"_s}, {u"discountRate"_s, u"7,5"_s}}),
                 QByteArray("=7.5* 2M\n2000H1T\n550H2T\n"));
    }

    void onlyThePrice() { QCOMPARE(closing({{u"price"_s, u"12.00"_s}}), QByteArray("1200H1T\n")); }

    void nothingPaid()
    {
        QCOMPARE(closing({{u"price"_s, u"10"_s}, {u"notPaid"_s, u"10"_s}}), QByteArray("1000H5T\n"));
    }

    void moreUnpaidThanThePrice()
    {
        QCOMPARE(closing({{u"price"_s, u"10"_s}, {u"notPaid"_s, u"12,5"_s}}),
                 QByteArray("-250H1T\n1250H5T\n"));
    }

    void whatIsNoNumberIsSent() { QCOMPARE(closing({{u"price"_s, u"nan"_s}}), QByteArray("nanH1T\n")); }

    void aDifferenceOfInfinitiesHasNoSign()
    {
        QCOMPARE(closing({{u"price"_s, u"inf"_s}, {u"notPaid"_s, u"inf"_s}}), QByteArray("nanH1T\ninfH5T\n"));
    }

    void nothingWithoutAmounts() { QCOMPARE(closing({}), QByteArray()); }

    void onlyATotalCloses() { QCOMPARE(closing({{u"price"_s, u"12.00"_s}}, u"Total"_s), QByteArray()); }
};

QTEST_GUILESS_MAIN(FiscalRegisterTest)
#include "fiscalregister_test.moc"
