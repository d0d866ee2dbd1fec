#include "rowdifference.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

std::vector<Strip> stripOf(const QStringList &rows)
{
    Strip strip{paper::StripKind::Paper, 32, {}};
    for (const QString &text : rows) {
        paper::Row row;
        for (const QChar c : text)
            row.cells.push_back({c.unicode(), {}, false});
        strip.lines.emplace_back(row);
    }
    return {strip};
}

QString numbersOf(const std::set<LinePlace> &places)
{
    QStringList numbers;
    for (const LinePlace &place : places)
        numbers += QString::number(place.second);
    return numbers.join(u' ');
}

} // namespace

class RowDifferenceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowsThatOnlyTheFirstPaperHas_data()
    {
        QTest::addColumn<QStringList>("rows");
        QTest::addColumn<QStringList>("others");
        QTest::addColumn<QString>("missing");
        QTest::newRow("the same") << QStringList{u"a"_s, u"b"_s} << QStringList{u"a"_s, u"b"_s} << QString();
        QTest::newRow("one more") << QStringList{u"a"_s, u"b"_s, u"c"_s} << QStringList{u"a"_s, u"c"_s}
                                  << u"1"_s;
        QTest::newRow("one less") << QStringList{u"a"_s} << QStringList{u"a"_s, u"b"_s} << QString();
        QTest::newRow("another") << QStringList{u"a"_s, u"x"_s} << QStringList{u"a"_s, u"y"_s} << u"1"_s;
        QTest::newRow("blank rows in front")
            << QStringList{u""_s, u""_s, u"a"_s} << QStringList{u""_s, u"a"_s} << u"1"_s;
        QTest::newRow("none left") << QStringList{u"a"_s, u"b"_s} << QStringList() << u"0 1"_s;
    }
    void rowsThatOnlyTheFirstPaperHas()
    {
        QFETCH(QStringList, rows);
        QFETCH(QStringList, others);
        QTEST(numbersOf(rowsMissingIn(stripOf(others), stripOf(rows))), "missing");
    }

    void paperThatNobodyReadsToItsEndIsNotCompared()
    {
        const std::vector<Strip> roll = stripOf(QStringList(2000, u"a"_s));
        QVERIFY(rowsMissingIn(stripOf({}), roll).empty());
    }
};

QTEST_GUILESS_MAIN(RowDifferenceTest)
#include "rowdifference_test.moc"
