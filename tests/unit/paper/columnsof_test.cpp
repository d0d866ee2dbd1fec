#include "paper.h"

#include <QTest>

/// How many columns a character takes on paper.
class ColumnsOfTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesItsColumns_data();
    void takesItsColumns();
};

void ColumnsOfTest::takesItsColumns_data()
{
    QTest::addColumn<char32_t>("character");
    QTest::addColumn<int>("columns");
    QTest::newRow("letter") << U'A' << 1;
    QTest::newRow("blank") << U' ' << 1;
    QTest::newRow("letter with an accent") << U'\u00e8' << 1;
    QTest::newRow("soft hyphen") << U'\u00ad' << 1;
    QTest::newRow("euro sign") << U'\u20ac' << 1;
    QTest::newRow("picture of a control character") << U'\u241b' << 1;
    QTest::newRow("stands for no character") << U'\ufffd' << 1;
    QTest::newRow("accent of its own") << U'\u0301' << 0;
    QTest::newRow("keycap around a digit") << U'\u20e3' << 0;
    QTest::newRow("zero-width space") << U'\u200b' << 0;
    QTest::newRow("picture selector") << U'\ufe0f' << 0;
    QTest::newRow("first of the wide ones") << U'\u1100' << 2;
    QTest::newRow("last initial consonant") << U'\u115f' << 2;
    QTest::newRow("Korean vowel in pieces") << U'\u1161' << 0;
    QTest::newRow("Korean syllable") << U'\uac00' << 2;
    QTest::newRow("Chinese character") << U'\u9eba' << 2;
    QTest::newRow("Japanese kana") << U'\u3042' << 2;
    QTest::newRow("half-width kana") << U'\uff71' << 1;
    QTest::newRow("full-width letter") << U'\uff21' << 2;
    QTest::newRow("voicing mark of its own") << U'\u3099' << 0;
    QTest::newRow("half a space of paper") << U'\u303f' << 1;
    QTest::newRow("pizza") << U'\U0001f355' << 2;
    QTest::newRow("between two wide ones") << U'\U0001f336' << 1;
    QTest::newRow("beyond the basic plane") << U'\U00020000' << 2;
    QTest::newRow("last character") << U'\U0010ffff' << 1;
}

void ColumnsOfTest::takesItsColumns()
{
    QFETCH(const char32_t, character);
    QTEST(paper::columnsOf(character), "columns");
}

QTEST_APPLESS_MAIN(ColumnsOfTest)

#include "columnsof_test.moc"
