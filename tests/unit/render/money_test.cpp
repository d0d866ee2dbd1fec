#include "money.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class MoneyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cents_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("cents");
        // Worked out by hand, or with another program's binary doubles and its "%.15g".
        const std::pair<const char16_t *, const char16_t *> rows[] = {
            // point and comma
            {u"12.50", u"1250"},
            {u"12,50", u"1250"},
            {u"12", u"1200"},
            {u"12.", u"1200"},
            {u"12,", u"1200"},
            {u".5", u"50"},
            {u",5", u"50"},
            {u"0.50", u"50"},
            {u"00012.50", u"1250"},
            {u"12.5", u"1250"},
            {u"12.500", u"1250"},
            {u"1,234.5", u"0"},
            {u"1.234,5", u"0"},
            {u"1,2,3", u"0"},
            // the cents that binary fractions miss
            {u"0.1", u"10"},
            {u"0.2", u"20"},
            {u"0.3", u"30"},
            {u"0.01", u"1"},
            {u"0.07", u"7"},
            {u"0.29", u"29"},
            {u"0.57", u"57"},
            {u"0.58", u"58"},
            {u"1.005", u"100.5"},
            {u"1.1", u"110"},
            {u"1.15", u"115"},
            {u"2.675", u"267.5"},
            {u"4.35", u"435"},
            {u"8.2", u"820"},
            {u"9.95", u"995"},
            {u"16.4", u"1640"},
            {u"19.99", u"1999"},
            {u"64.1", u"6410"},
            {u"65.4", u"6540"},
            {u"1001.1", u"100110"},
            {u"1234.56", u"123456"},
            {u"99999.99", u"9999999"},
            // fractions of a cent stay
            {u"12,345", u"1234.5"},
            {u"12.3456", u"1234.56"},
            {u"0.001", u"0.1"},
            {u"0.005", u"0.5"},
            {u"0.0001", u"0.01"},
            {u"0.333", u"33.3"},
            {u"0.3333333333333333", u"33.3333333333333"},
            {u"0.6666666666666666", u"66.6666666666667"},
            // signs, blanks, exponents
            {u"-1.50", u"-150"},
            {u"-1,50", u"-150"},
            {u"+1.50", u"150"},
            {u"--1", u"0"},
            {u"+", u"0"},
            {u"-", u"0"},
            {u" 1.50", u"150"},
            {u"1.50 ", u"150"},
            {u"\t1.50\n", u"150"},
            {u"1 50", u"0"},
            {u"- 1.50", u"0"},
            {u"1e3", u"100000"},
            {u"1E3", u"100000"},
            {u"1e-2", u"1"},
            {u"1,5e2", u"15000"},
            {u"1e", u"0"},
            {u"e3", u"0"},
            // nothing, words
            {u"", u"0"},
            {u" ", u"0"},
            {u".", u"0"},
            {u",", u"0"},
            {u"abc", u"0"},
            {u"12abc", u"0"},
            {u"EUR 5", u"0"},
            {u"5 EUR", u"0"},
            {u"€5", u"0"},
            {u"0x10", u"0"},
            {u"1_000", u"0"},
            {u"1'000", u"0"},
            {u"٥", u"0"},
            // large and tiny
            {u"9999999999.99", u"999999999999"},
            {u"1e12", u"100000000000000"},
            {u"9999999999999", u"999999999999900"},
            {u"1e13", u"1e+15"},
            {u"1e15", u"1e+17"},
            {u"12345678901234567", u"1.23456789012346e+18"},
            {u"123456789012.345", u"12345678901234.5"},
            {u"1234567890123.45", u"123456789012345"},
            {u"0.000001", u"0.0001"},
            {u"0.0000001", u"1e-05"},
            {u"1e-10", u"1e-08"},
            {u"1e-320", u"9.99988867182683e-319"},
            {u"0", u"0"},
            {u"0.00", u"0"},
            {u"-0", u"-0"},
            {u"-0.00", u"-0"},
        };
        for (const auto &[text, cents] : rows)
            QTest::newRow(qPrintable(u'"' + QString::fromUtf16(text) + u'"'))
                << QString::fromUtf16(text) << QString::fromUtf16(cents);
    }
    void cents()
    {
        QFETCH(QString, text);
        QFETCH(QString, cents);
        QCOMPARE(money::toCents(text), cents);
    }

    void theExactHalfIsRoundedToEven()
    {
        QCOMPARE(money::format(112456675173314.5), u"112456675173314"_s);
        QCOMPARE(money::format(112456675173315.5), u"112456675173316"_s);
        QCOMPARE(money::format(4803558647363.125), u"4803558647363.12"_s);
    }

    void formattingKeepsFifteenDigits()
    {
        QCOMPARE(money::format(4.35 * 100), u"435"_s); // the shortest exact form is 434.99999999999994
        QCOMPARE(money::format(7.5), u"7.5"_s);
        QCOMPARE(money::format(10), u"10"_s);
        QCOMPARE(money::format(999999999999999), u"999999999999999"_s);
        QCOMPARE(money::format(1e15), u"1e+15"_s);
        QCOMPARE(money::format(1.0 / 3), u"0.333333333333333"_s);
        QCOMPARE(money::format(0.0001), u"0.0001"_s);
        QCOMPARE(money::format(0.00001), u"1e-05"_s);
    }
};

QTEST_GUILESS_MAIN(MoneyTest)
#include "money_test.moc"
