// What of a row is drawn at once, and where.

#include "characters.h"
#include "runs.h"
#include "samplestrip.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

/// "text@column+columns", a run each; "!" behind what is over the edge, "?" behind what is broken.
QStringList written(const std::vector<Run> &runs)
{
    QStringList list;
    for (const Run &run : runs)
        list += u"%1@%2+%3%4%5"_s.arg(run.text)
                    .arg(run.column)
                    .arg(run.columns)
                    .arg(run.isOver ? u"!"_s : u""_s, run.isBroken ? u"?"_s : u""_s);
    return list;
}

} // namespace

class RunsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void runs_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("expected");
        const auto row = [](const char *name, const QString &text, const QStringList &expected) {
            QTest::newRow(name) << text << expected;
        };
        row("nothing", u""_s, {});
        row("plain", u"Caffè 1,50"_s, {u"Caffè 1,50@0+10"_s});
        row("blanks", u"  a  "_s, {u"  a  @0+5"_s});
        row("over the edge", u"123456789012"_s, {u"1234567890@0+10"_s, u"12@10+2!"_s});
        row("wide ones by themselves", u"a日本b"_s, {u"a@0+1"_s, u"日@1+2"_s, u"本@3+2"_s, u"b@5+1"_s});
        row("a wide one that crosses the edge", u"123456789日"_s, {u"123456789@0+9"_s, u"日@9+2!"_s});
        row("from right to left by themselves", u"של"_s, {u"ש@0+1"_s, u"ל@1+1"_s});
        row("a mark stays with its letter", u"Cafe\u0301 a"_s, {u"Cafe\u0301@0+4"_s, u" a@4+2"_s});
        row("a mark at the beginning", u"\u0301ab"_s, {u"\u0301a@0+1"_s, u"b@1+1"_s});
        row("beyond the basic plane", u"x🍕"_s, {u"x@0+1"_s, u"🍕@1+2"_s});
        row("a soft hyphen is seen", u"a\u00adb"_s, {u"a-b@0+3"_s});
        row("no line break is made", u"a\u2028b"_s, {u"a@0+1"_s, u"␤@1+1"_s, u"b@2+1"_s});
    }
    void runs()
    {
        QFETCH(QString, text);
        constexpr int paperColumns = 10;
        QTEST(written(runsOf(plainRow(text), paperColumns)), "expected");
    }

    void stylesPartRuns()
    {
        paper::Row row = plainRow(u"abcd"_s);
        row.cells[1].style.bold = true;
        row.cells[2].style.doubleWidth = true;
        row.cells[3].isBroken = true;
        QCOMPARE(written(runsOf(row, 40)), QStringList({u"a@0+1"_s, u"b@1+1"_s, u"c@2+2"_s, u"d@4+1?"_s}));
        QCOMPARE(columnsOf(row), 5);
    }

    void charactersKeepTheirMarks()
    {
        QCOMPARE(charactersOf(u"e\u0301a\u0300\u0323🍕"_s),
                 QStringList({u"e\u0301"_s, u"a\u0300\u0323"_s, u"🍕"_s}));
        QCOMPARE(charactersOf(u"\u0301\u0300e"_s), QStringList({u"\u0301\u0300e"_s}));
        QCOMPARE(charactersOf({}), QStringList());
    }

    void noncharactersAreReplaced()
    {
        QCOMPARE(uint(shown(0xfdd0)), 0xfffdU);
        QCOMPARE(uint(shown(0x110000)), 0xfffdU);
        QCOMPARE(uint(shown(U'€')), uint(U'€'));
    }
};

QTEST_MAIN(RunsTest)
#include "runs_test.moc"
