#include "testprinter.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

DocumentSettings widths(int quantity, int price, int total, int paper)
{
    DocumentSettings settings;
    settings.quantityFieldWidth = quantity;
    settings.priceFieldWidth = price;
    settings.totalPriceFieldWidth = total;
    settings.paperWidth = paper;
    return settings;
}

} // namespace

class LayoutTest : public QObject
{
    Q_OBJECT

private:
    const TemporaryHome home;

    QString row(const DocumentSettings &settings, const QString &quantity, const QString &description,
                const QString &price, const QString &total, const QString &style, QChar fill = u'.')
    {
        TestPrinter printer(home.filePath(u"output"_s));
        printer.take(settings);
        return printer.descriptionRow(quantity, description, price, total, fill, style);
    }

private Q_SLOTS:
    void initTestCase() { home.configure("palvestrin: { };"); }

    void rows_data()
    {
        QTest::addColumn<QString>("style");
        QTest::addColumn<QString>("expected");
        QTest::newRow("qdpt") << u"qdpt"_s << u"  2 Pizza Margherita........5.00   10.00"_s;
        QTest::newRow("qxdpt") << u"qxdpt"_s << u"  2 x Pizza Margherita......5.00   10.00"_s;
        QTest::newRow("qxd") << u"qxd"_s << u"  2 x Pizza Margherita.................."_s;
        QTest::newRow("qd") << u"qd"_s << u"  2 Pizza Margherita                  "_s;
        QTest::newRow("qxdtDoubleLine")
            << u"qxdtDoubleLine"_s << u"2 x 5.00\nPizza Margherita...................10.00"_s;
        QTest::newRow("unknown") << u"QDPT"_s << QString();
        QTest::newRow("empty") << QString() << QString();
    }
    void rows()
    {
        QFETCH(QString, style);
        QTEST(row(widths(3, 8, 8, 40), u"2"_s, u"Pizza Margherita"_s, u"5.00"_s, u"10.00"_s, style),
              "expected");
    }

    void theStatementRow()
    {
        QCOMPARE(row(widths(3, 8, 8, 40), u"2006-05-14"_s, u"Payment"_s, u"120.00"_s, u"ignored"_s,
                     u"date-amount-type"_s),
                 u"2006-05-14     Payment.........120.00"_s);
    }

    void onlyTheDescriptionIsCut()
    {
        const DocumentSettings settings = widths(3, 8, 8, 40);
        QCOMPARE(row(settings, u"12"_s, u"A very long description that overflows"_s, u"1234567.50"_s,
                     u"12345.00"_s, u"qdpt"_s),
                 u" 12 A very long descript1234567.5012345.00"_s);
        QCOMPARE(row(settings, u"1"_s, u"12345678901234567890"_s, u"1.00"_s, u"2.00"_s, u"qdpt"_s),
                 u"  1 12345678901234567890....1.00    2.00"_s);
        QCOMPARE(row(settings, u"1"_s, u"123456789012345678901"_s, u"1.00"_s, u"2.00"_s, u"qdpt"_s),
                 u"  1 12345678901234567890....1.00    2.00"_s);
        QCOMPARE(row(settings, u"1"_s, QString(), u"1.00"_s, u"2.00"_s, u"qdpt"_s),
                 u"  1 ........................1.00    2.00"_s);
        QCOMPARE(row(settings, u"12345"_s, u"Tea"_s, u"1.00"_s, u"123456789.00"_s, u"qdpt"_s),
                 u"12345 Tea.....................1.00123456789.00"_s);
    }

    void aPizzaCountsOnceAndIsNeverHalved()
    {
        const QString pizzas = u"\U0001F355\U0001F355\U0001F355"_s;
        QCOMPARE(row(widths(1, 1, 1, 6), u"1"_s, pizzas, u"2"_s, u"3"_s, u"qdpt"_s), u"1 \U0001F355\U0001F355"
                                                                                     u"23"_s);
    }

    void aDescriptionWidthOfZeroOrLess()
    {
        QCOMPARE(row(widths(3, 8, 8, 20), u"2"_s, u"Pizza"_s, u"5.00"_s, u"10.00"_s, u"qdpt"_s),
                 u"  2 ....5.00   10.00"_s);
        QCOMPARE(row(widths(3, 8, 8, 19), u"2"_s, u"Pizza"_s, u"5.00"_s, u"10.00"_s, u"qdpt"_s),
                 u"  2 Pizza....5.00   10.00"_s);
        QCOMPARE(row(widths(-3, -8, -8, -40), u"2"_s, u"Pizza"_s, u"5.00"_s, u"10.00"_s, u"qdpt"_s),
                 u"2 Pizza5.0010.00"_s);
    }

    void hugeWidthsEndAsNegativeOnesDo()
    {
        constexpr int most = std::numeric_limits<int>::max();
        constexpr int least = std::numeric_limits<int>::min();
        QCOMPARE(row(widths(most, 8, 8, 40), u"2"_s, u"Pizza"_s, u"5.00"_s, u"10.00"_s, u"qdpt"_s),
                 u"2 Pizza....5.00   10.00"_s);
        QCOMPARE(row(widths(3, 8, 8, most), u"2"_s, u"Pizza"_s, u"5.00"_s, u"10.00"_s, u"qdpt"_s),
                 u"  2 Pizza....5.00   10.00"_s);
        QCOMPARE(row(widths(least, 8, 8, 40), u"2"_s, u"Pizza"_s, u"5.00"_s, u"10.00"_s, u"qdpt"_s),
                 u"2 Pizza....5.00   10.00"_s);
        QCOMPARE(row(widths(0, 0, 0, least), u"2"_s, u"Pizza"_s, u"5.00"_s, u"10.00"_s, u"qdpt"_s),
                 u"2 Pizza5.0010.00"_s);
    }

    void titlesStandOnceInARun()
    {
        const QByteArray output = printed([](TestPrinter &printer) {
            printer.take(widths(3, 8, 8, 40));
            printer.startSection();
            printer.printColumnsHeader(u"Qty"_s, u"Description"_s, u"Price"_s, u"Total"_s);
            printer.printColumnsHeader(u"Qty"_s, u"Description"_s, u"Price"_s, u"Total"_s);
            QVERIFY(!printer.oneTime());
        });
        QCOMPARE(output, QByteArray("\nj\n\"Qty Description            Price   Total\"@\n"));
    }

    void titlesNeverStandAfterOneTime()
    {
        const QByteArray output = printed([](TestPrinter &printer) {
            printer.startSection();
            QVERIFY(printer.oneTime());
            QVERIFY(!printer.oneTime());
            printer.printColumnsHeader(u"Qty"_s, u"Description"_s, u"Price"_s, u"Total"_s);
        });
        QCOMPARE(output, QByteArray("\nj\n"));
    }

    void rules()
    {
        const QByteArray output = printed([](TestPrinter &printer) {
            printer.startSection();
            for (const int width : {5, 0, -1}) {
                printer.paperWidth = width;
                printer.printSeparatorLine();
            }
        });
        QCOMPARE(output, QByteArray("\nj\n\"=====\"@\n\"\"@\n\"\"@\n"));
    }
};

QTEST_GUILESS_MAIN(LayoutTest)
#include "layout_test.moc"
