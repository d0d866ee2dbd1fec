#include "deadlines.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class DeadLinesTest : public QObject
{
    Q_OBJECT

private:
    static QByteArray asLines(const std::vector<DeadLine> &found)
    {
        QByteArray lines;
        for (const DeadLine &line : found)
            lines += u"%1:%2 "_s.arg(line.at.line).arg(line.at.column).toUtf8() + line.why.toUtf8() + '\n';
        return lines;
    }
    static QByteArray glued(const QByteArray &place, const QByteArray &front, const QByteArray &name)
    {
        return place + " this line sets nothing: \"" + front + "\" in front of \"" + name +
               "\" is read as part of that name; remove that text and this line\n";
    }
    static QByteArray swallowed(const QByteArray &place, const QByteArray &key)
    {
        return place + " this line sets nothing: it is read as part of the value of \"" + key +
               "\"; put a \";\" behind that value and remove this line\n";
    }

private Q_SLOTS:
    void found_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QByteArray>("lines");
        const auto row = [](const char *name, const QByteArray &content, const QByteArray &lines) {
            QTest::newRow(name) << content << lines;
        };
        row("nothing", "", "");
        row("a setting", "p: { logger: { level = INFO; }; };", "");
        row("a remark above", "p: {\n  logger: {\n    # loud\n    level = INFO;\n  };\n};",
            glued("4:5", "# loud", "level"));
        row("a remark behind the setting above", "p: { logger: { a = 1; // one\n  level = INFO; }; };",
            glued("2:3", "// one", "level"));
        row("a remark in front, in one line", "p: { logger: { /* x */ level = INFO; }; };",
            glued("1:24", "/* x */", "level"));
        row("a semicolon too many", "p: { logger: { a = 1;; level = INFO; }; };",
            glued("1:24", ";", "level"));
        row("a setting that is out of use",
            "p: { logger: {\n # level = INFO;\n#\n  // old level = 1;\n }; };", "");
        row("out of use below a remark", "p: { logger: { note\n # level = INFO; }; };", "");
        row("a remark above the block", "p: {\n  # mine\n  logger: { level = INFO; };\n};",
            glued("3:13", "# mine", "logger"));
        row("a remark above the first block", "# mine\np: { logger: { level = INFO; }; };",
            glued("2:16", "# mine", "p"));
        row("a block that is out of use", "p: { # logger: { level = INFO; }; };", "");
        row("two remarks", "p: { # a\n logger: { # b\n level = INFO; }; };", glued("3:2", "# a", "logger"));
        row("another key", "p: { logger: { # a\n levels = INFO; }; };", "");
        row("another block", "p: { db: { # a\n level = INFO; }; };", "");
        row("another depth", "p: { # a\n level = INFO; logger: { q: { # b\n level = 1; }; }; };", "");
        row("behind a block that has ended", "p: { logger: { }; # a\n level = INFO; };", "");
        row("several", "p: { logger: { # a\n level = 1; level = 2; # b\n level = 3; }; };",
            glued("2:2", "# a", "level") + glued("3:2", "# b", "level"));
        row("a long remark", "p: { logger: { #" + QByteArray(3000, 'x') + "\n level = 1; }; };",
            glued("2:2", "#" + QByteArray(39, 'x') + "...", "level"));
        row("a missing semicolon above", "p: { logger: {\n  a = 1\n\n  level = INFO;\n }; };",
            swallowed("4:3", "a"));
        row("a remark with an equals sign above",
            "p: { logger: {\n  # level = loudness\n  level=\"INFO\";\n }; };", swallowed("3:3", "# level"));
        row("a missing semicolon two lines above", "p: { logger: { a = 1\n b = 2\n level = 3; }; };",
            swallowed("3:2", "a"));
        row("a value that only mentions it", "p: { logger: { a = the\n level; b = level = 3; }; };", "");
        row("a missing semicolon in another block", "p: { db: { a = 1\n level = 3; }; };", "");
    }
    void found()
    {
        QFETCH(QByteArray, content);
        QFETCH(QByteArray, lines);
        QCOMPARE(asLines(deadLines(content, u"p.logger.level"_s)), lines);
    }
};

QTEST_GUILESS_MAIN(DeadLinesTest)
#include "deadlines_test.moc"
