#include "columns.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class ColumnsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lengthCountsCharacters()
    {
        QCOMPARE(columns::length(u""), 0);
        QCOMPARE(columns::length(u"caffè"), 5);
        QCOMPARE(columns::length(u"a\U0001F355b"), 3);
        QCOMPARE(columns::length(QString(QChar(0xD83C)) + u'a'), 2); // half a character alone counts as one
    }

    void justifying()
    {
        QCOMPARE(columns::leftJustified(u"ab"_s, 4, u'.'), u"ab.."_s);
        QCOMPARE(columns::leftJustified(u"abcd"_s, 4, u'.'), u"abcd"_s);
        QCOMPARE(columns::leftJustified(u"abcde"_s, 4, u'.'), u"abcde"_s);
        QCOMPARE(columns::rightJustified(u"ab"_s, 4, u' '), u"  ab"_s);
        QCOMPARE(columns::rightJustified(u"abcde"_s, 4, u' '), u"abcde"_s);
        QCOMPARE(columns::leftJustified(u"\U0001F355"_s, 3, u'.'), u"\U0001F355.."_s);
        QCOMPARE(columns::rightJustified(u"\U0001F355"_s, 3, u'.'), u"..\U0001F355"_s);
    }

    void cutting()
    {
        QCOMPARE(columns::cut(u"abc"_s, 0), QString());
        QCOMPARE(columns::cut(u"abc"_s, 2), u"ab"_s);
        QCOMPARE(columns::cut(u"abc"_s, 3), u"abc"_s);
        QCOMPARE(columns::cut(u"abc"_s, 4), u"abc"_s);
        QCOMPARE(columns::cut(u"a\U0001F355b"_s, 1), u"a"_s);
        QCOMPARE(columns::cut(u"a\U0001F355b"_s, 2), u"a\U0001F355"_s);
        QCOMPARE(columns::cut(u"\U0001F355\U0001F355\U0001F355"_s, 2), u"\U0001F355\U0001F355"_s);
    }

    void aRowIsItsPieces()
    {
        const QString row = columns::Row()
                                .rightJustified(u"2", 3, u' ')
                                .text(u" x ")
                                .cut(u"Caffè macchiato", 5, u'.')
                                .cut(u"\U0001F355\U0001F355", 1, u'.')
                                .cut(u"", 2, u'.')
                                .leftJustified(u"ab", 4, u'-')
                                .leftJustified(u"abcde", 4, u'-')
                                .cut(u"whole", -1, u'.')
                                .toString();
        QCOMPARE(row, u"  2 x Caffè\U0001F355..ab--abcdewhole"_s);
        QCOMPARE(columns::Row().toString(), QString());
    }

    void widthsOutOfReachChangeNothing()
    {
        for (const int width :
             {-1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), columns::maxWidth + 1}) {
            QCOMPARE(columns::leftJustified(u"abc"_s, width, u'.'), u"abc"_s);
            QCOMPARE(columns::rightJustified(u"abc"_s, width, u'.'), u"abc"_s);
            QCOMPARE(columns::cut(u"abc"_s, width), u"abc"_s);
        }
        QCOMPARE(columns::leftJustified(u"abc"_s, columns::maxWidth, u'.').size(), columns::maxWidth);
    }
};

QTEST_GUILESS_MAIN(ColumnsTest)
#include "columns_test.moc"
