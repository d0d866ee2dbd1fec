#include "visiblediff.h"

#include <QTest>

class VisibleDiffTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyByteCanBeSeen_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QByteArray>("seen");
        const auto row = [](const char *name, const QByteArray &bytes, const QByteArray &seen) {
            QTest::newRow(name) << bytes << seen;
        };
        row("nothing", "", "");
        row("printed line", "\"a b\"@\n", "\"a·b\"@␊");
        row("sale line", "\"A\"1*50H1R\r\n", "\"A\"1*50H1R␍␊");
        row("tab and control", QByteArray("\t\0\x1b\x7f", 4), "␉\\x00\\x1b\\x7f");
        row("backslash", "a\\n", "a\\x5cn");
        row("letters and pictures", "è€🍕", "è€🍕");
        row("not UTF-8", "caff\xe8 ", "caff\\xe8·");
        row("half a letter", "\xc3", "\\xc3");
        row("replacement character", "\xef\xbf\xbd", "\xef\xbf\xbd");
        row("surrogate as bytes", "\xed\xa0\x80", "\\xed\\xa0\\x80");
        row("the blank's own sign", "a·b", "a\\xc2\\xb7b");
    }
    void everyByteCanBeSeen()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QByteArray, seen);
        QCOMPARE(visible(bytes), seen);
    }

    void differences_data()
    {
        QTest::addColumn<QByteArray>("expected");
        QTest::addColumn<QByteArray>("actual");
        QTest::addColumn<QByteArray>("diff");
        const auto row = [](const char *name, const QByteArray &expected, const QByteArray &actual,
                            const QByteArray &diff) { QTest::newRow(name) << expected << actual << diff; };
        row("equal", "a\nb\n", "a\nb\n", "");
        row("both empty", "", "", "");
        row("changed line", "a\nb\nc\n", "a\nB\nc\n", "line 2:\n-b␊\n+B␊\n");
        row("missing line", "a\nb\nc\n", "a\nc\n", "line 2:\n-b␊\n");
        row("line too many", "a\nc\n", "a\nb\nc\n", "line 2:\n+b␊\n");
        row("repeated line", "a\na\n", "a\na\na\n", "line 3:\n+a␊\n");
        row("carriage return", "a\r\n", "a\n", "line 1:\n-a␍␊\n+a␊\n");
        row("no line feed at the end", "a\n", "a", "line 1:\n-a␊\n+a\n");
        row("nothing came", "a\n", "", "line 1:\n-a␊\n");
        row("nothing was wanted", "", "a\n", "line 1:\n+a␊\n");
        row("trailing blank", "a\n", "a \n", "line 1:\n-a␊\n+a·␊\n");
    }
    void differences()
    {
        QFETCH(QByteArray, expected);
        QFETCH(QByteArray, actual);
        QFETCH(QByteArray, diff);
        QCOMPARE(visibleDiff(expected, actual), diff);
    }

    void longDifferencesAreCut()
    {
        QCOMPARE(visibleDiff("", QByteArray("a\n").repeated(42)),
                 "line 1:\n" + QByteArray("+a␊\n").repeated(40) + "+(and 2 lines more)\n");
    }
};

QTEST_GUILESS_MAIN(VisibleDiffTest)
#include "visiblediff_test.moc"
