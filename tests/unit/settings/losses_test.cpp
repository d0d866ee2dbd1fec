#include "configfile.h"
#include "losses.h"
#include "scratchfolder.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

class LossesTest : public QObject
{
    Q_OBJECT

private:
    const ScratchFolder folder{};

    static QByteArray asLines(const std::vector<Loss> &losses)
    {
        QByteArray lines;
        for (const Loss &loss : losses)
            lines += u"%1:%2 "_s.arg(loss.at.line).arg(loss.at.column).toUtf8() + loss.what.toUtf8() + '\n';
        return lines;
    }
    /// What is left of a file when layout, quotes and ends are taken out, in no order: writing may move
    /// pairs.
    static QByteArray substance(QByteArray content)
    {
        content.removeIf([](char c) { return QByteArrayView(" \t\n\v\f\r\";{}").contains(c); });
        std::ranges::sort(content);
        return content;
    }

private Q_SLOTS:
    void inText_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QByteArray>("losses");
        const auto row = [](const char *name, const QByteArray &content, const QByteArray &losses) {
            QTest::newRow(name) << content << losses;
        };
        row("nothing", "", "");
        row("the usual layout",
            "p: \n{\n    k = \"v\";\n    q: \n    {\n        m = \"w\";\n    };\n\n};\n\n", "");
        row("crammed", "p:{k=v;q:{m=w;};n=x;};", "");
        row("ends early", "p: { k = v", "");
        row("a remark glued to a key", "p: {\n  # note\n  k = v;\n};", "");
        row("a remark before a brace", "p: {\n  k = v;\n  # the end\n};",
            "3:3 \"# the end\", which belongs to no setting\n");
        row("a remark behind the file", "p: { k = v; };\n# the end\n",
            "2:1 \"# the end\", which belongs to no setting\n");
        row("a remark before the brace of a block", "p: // note\n{ k = v; };",
            "1:4 \"// note\" between a block's name and its brace\n");
        row("a missing semicolon behind a brace", "p: { q: { k = v; }\n  m = w;\n  n = x; };",
            "2:3 \"m = w\" between a closing brace and the next \";\" (is one missing?)\n");
        row("a second block", "p: { k = v; };\nq: { k = v; # note\n };",
            "2:1 block \"q\": only the first top-level block is read and written\n");
        row("an empty block", "p: { k = v; q: { }; };", "1:13 empty block \"q\"\n");
        row("an empty first block", "e: { };\np: { k = v; };", "1:1 empty block \"e\"\n");
        row("a key twice", "p: {\n  k = 1;\n  m = 2;\n  k = 3;\n};",
            "2:3 this value of \"k\": line 4 gives another\n");
        row("a key in two blocks", "p: { a: { k = 1; }; b: { k = 2; }; };", "");
        row("inner quotes", "p: { k = \"a\"b\"c\"; };",
            "1:10 the quotes inside the value of \"k\" (is a \";\" missing?)\n");
        row("a missing semicolon behind a value", "p: {\n  k = \"v\"\n  m = \"w\";\n};",
            "2:7 the quotes inside the value of \"k\" (is a \";\" missing?)\n");
        row("a top-level brace", "p: { k = v; };\n}; q: { k = v; };",
            "2:1 everything behind this brace, which closes no block\n");
        row("a block without a brace", "p: { k = v; };\nq: ", "2:1 block \"q\" without a brace\n");
        row("a long value", "p: { k = \"" + QByteArray(2045, 'v') + "\"; };",
            "1:10 the end of the value of \"k\": a value has room for 2044 bytes\n");
        row("a value that just fits", "p: { k = \"" + QByteArray(2044, 'v') + "\"; };", "");
        row("a long name", "p: { " + QByteArray(2048, 'n') + " = v; };",
            "1:6 the end of \"nnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnn...\": a name has room for 2047 bytes, "
            "blanks in "
            "front included\n");
        row("too deep", QByteArray("a:{").repeated(1001) + "k=v;",
            "1:3001 blocks nested deeper than 1000, and everything behind\n");
        row("columns are bytes", "p: { k = \xc3\xa8; \xe8 };",
            "1:14 \"\xc3\xa8\", which belongs to no setting\n");
    }
    void inText()
    {
        QFETCH(QByteArray, content);
        QFETCH(QByteArray, losses);
        QCOMPARE(asLines(lossesInText(content)), losses);
    }

    void inXml_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QByteArray>("losses");
        QTest::newRow("elements and attributes") << QByteArray("<p>\n  <q k='v'/>\n</p>\n") << QByteArray();
        QTest::newRow("a remark") << QByteArray("<p>\n  <!-- a note -->\n</p>\n")
                                  << QByteArray("2:3 the remark \"a note\"\n");
        QTest::newRow("several") << QByteArray(
                                        "<p><!-- a --><!-- b -->\n c<q k='&lt;'/><!-- d --></p><!-- e -->")
                                 << QByteArray(
                                        "1:4 the remark \"a\"\n1:14 the remark \"b\"\n2:2 the text \"c\"\n"
                                        "2:16 the remark \"d\"\n2:30 the remark \"e\"\n");
        QTest::newRow("text") << QByteArray("<p>some\n text</p>")
                              << QByteArray("1:4 the text \"some text\"\n");
        QTest::newRow("an instruction")
            << QByteArray("<p><?do it?></p>") << QByteArray("1:4 the processing instruction \"do\"\n");
        QTest::newRow("a declaration")
            << QByteArray("<?xml version='1.0'?><p/>") << QByteArray("1:1 the XML declaration\n");
        QTest::newRow("a document type")
            << QByteArray("<!DOCTYPE p><p/>") << QByteArray("1:1 the document type\n");
    }
    void inXml()
    {
        QFETCH(QByteArray, content);
        QFETCH(QByteArray, losses);
        QCOMPARE(asLines(lossesInXml(content)), losses);
    }

    /// The promise behind "nothing is lost without --force", held against the real reader and writer.
    void whereNoneIsFoundNothingIsLost()
    {
        QRandomGenerator random(20061114);
        const QByteArrayView letters("ab:={};\" \n#");
        int lossless = 0;
        for (int round = 0; round < 3000; ++round) {
            QByteArray content = "p: { a = 1; ";
            for (int i = random.bounded(24); i > 0; --i)
                content += letters[random.bounded(int(letters.size()))];
            if (!lossesInText(content).empty())
                continue;
            ++lossless;
            ConfigFile file(folder.write(u"random.conf"_s, content));
            const QByteArray written = file.written(form::text);
            QCOMPARE(substance(written), substance(content));
            QCOMPARE(lossesInText(written).size(), size_t(0));
            QCOMPARE(ConfigFile(folder.write(u"again.conf"_s, written)).written(form::text), written);
        }
        QVERIFY2(lossless > 300, qPrintable(QString::number(lossless)));
    }
};

QTEST_GUILESS_MAIN(LossesTest)
#include "losses_test.moc"
