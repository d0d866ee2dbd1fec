// What is wrong with a configuration: each case with the whole of what is said of it.

#include "configurationfindings.h"
#include "wholefile.h"

#include <QElapsedTimer>
#include <QTest>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString exampleConfiguration =
    QStringLiteral(PALVESTRIN_SOURCE_DIR) + u"/examples/home/.palvestrin/conf/palvestrin.conf"_s;

/// A machine as a test wants it.
struct Machine : check::Surroundings
{
    bool isComplete = false;
    mutable QStringList asked{};

    bool hasCatalogue() const override { return isComplete; }
    bool canWriteFile(const QString &path) const override
    {
        asked += path;
        return isComplete;
    }
};

/// A file with one block in the block "palvestrin"; the block's lines begin in line 3.
QByteArray withBlock(const QByteArray &name, const QByteArray &lines)
{
    return "palvestrin: {\n" + name + ": {\n" + lines + "};\n};\n";
}

} // namespace

class ConfigurationTest : public QObject
{
    Q_OBJECT

private:
    static void addColumns()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QByteArray>("findings");
    }
    static void row(const char *name, const QByteArray &content, const QByteArray &findings)
    {
        QTest::newRow(name) << content << findings;
    }
    static void compare()
    {
        QFETCH(QByteArray, content);
        QFETCH(QByteArray, findings);
        QCOMPARE(ConfigurationFindings(content).asText(), findings);
    }

private Q_SLOTS:
    void theExampleIsInOrder()
    {
        QCOMPARE(ConfigurationFindings(contentOf(exampleConfiguration)).asText(check::Severity::Warning),
                 QByteArray());
        Machine machine;
        machine.isComplete = true;
        QCOMPARE(ConfigurationFindings(contentOf(exampleConfiguration), &machine).areSerious(), false);
        QCOMPARE(machine.asked, QStringList{u"/var/log/palvestrin/palvestrin.log"_s});
    }

    void sound_data()
    {
        addColumns();
        const auto sound = [](const char *name, const QByteArray &content) { row(name, content, ""); };
        sound("nothing", "");
        sound("white space", " \n\t\n");
        sound("crammed", "palvestrin:{doc:{paperWidth=40;};logger:{level=info;};};");
        sound("ends early", "palvestrin: { doc: { paperWidth = 40; }; };");
        sound("delimiters in a value", withBlock("bin", "path = \"/a=b:{c}\";\n"));
        sound("a value over two lines", withBlock("bin", "path = \"/a\n/b\";\n"));
        sound("two blocks of one name",
              "palvestrin: { doc: { paperWidth = 40; }; doc: { topMargin = 0; }; };");
        sound("empty values", withBlock("doc", "paperWidth = \"\"; printDate = ; style = \"\";\n"));
        sound("a receipt printer's settings",
              withBlock("receiptdoc",
                        "openCashDrawer = true; printLogo = true; paperRows = 60; copyNumber = 2;\n"));
        sound("a key that is long for its blanks",
              withBlock("doc", "paperWidth" + QByteArray(3000, ' ') + "= 40;\n"));
        sound("Latin-1", withBlock("db", "dbname = \"Caff\xe8 \xc9t\xe9\";\n"));
        sound("XML", "<palvestrin><doc paperWidth='40'/><!-- a note --></palvestrin>");
    }
    void sound() { compare(); }

    void text_data();
    void text() { compare(); }
    void otherFiles_data();
    void otherFiles() { compare(); }
    void settings_data();
    void settings() { compare(); }
    void columns_data();
    void columns() { compare(); }
    void xml_data();
    void xml() { compare(); }
    void passwords_data();
    void passwords();
    void surroundings();
    void theUsersOwnFileIsText();
    void aHugeFileIsToldInOneLine();
    void hostileFilesTakeNoTime_data();
    void hostileFilesTakeNoTime();
};

void ConfigurationTest::text_data()
{
    addColumns();
    row("a remark above a pair", withBlock("logger", "# loud\nlevel = \"DEBUG\";\n"),
        "4:1: error: \"# loud\" is read as part of the name behind it: \"palvestrin.logger.level\" is lost; "
        "take it "
        "out; this form of file has no remarks [remark]\n");
    row("a remark behind a pair", withBlock("logger", "level = \"DEBUG\"; // loud\ntype = \"APPEND\";\n"),
        "4:1: error: \"// loud\" is read as part of the name behind it: \"palvestrin.logger.type\" is lost; "
        "take it "
        "out; this form of file has no remarks [remark]\n");
    row("a remark above a block", "palvestrin: {\n/* tickets */\n  doc: { paperWidth = 40; };\n};",
        "3:3: error: \"/* tickets */\" is read as part of the name behind it: the block \"palvestrin.doc\" "
        "is lost; "
        "take it out; this form of file has no remarks [remark]\n");
    row("a remark above everything", "# ours\npalvestrin: { doc: { paperWidth = 40; }; };",
        "2:1: error: \"# ours\" is read as part of the name behind it: the block \"palvestrin\" is lost; "
        "take it out; "
        "this form of file has no remarks [remark]\n");
    row("a remark above a misspelled pair", withBlock("logger", "# loud\nlevle = \"DEBUG\";\n"),
        "4:1: error: \"# loud\" is read as part of the name behind it: \"palvestrin.logger.levle\" is lost; "
        "take it "
        "out; this form of file has no remarks [remark]\n");
    row("a remark with a colon", "palvestrin: {\n# see: the manual\nlogger: { level = \"INFO\"; };\n};",
        "3:1: error: \"logger\" is lost: the \":\" of the remark in line 2 drops everything up to the next "
        "\"{\"; take "
        "the remark out; this form of file has no remarks [remark]\n");
    row("a remark with an equals sign", withBlock("logger", "# level = loudness\nlevel = \"INFO\";\n"),
        "4:1: error: \"level\" is read as part of the remark in line 3, which goes on up to the next \";\"; "
        "take the "
        "remark out; this form of file has no remarks [remark]\n");
    row("a remark with a brace", withBlock("logger", "level = \"INFO\";\n# } end of it\n"),
        "4:1: warning: \"#\" belongs to no setting and is dropped; take it out, or put in the \"=\" or \";\" "
        "that it "
        "lacks [stray-text]\n"
        "4:3: error: the \"}\" in the remark \"#\" ends the block here; take the remark out; this form of "
        "file has no "
        "remarks [remark]\n"
        "4:5: error: \"end of it }\" is skipped: the \";\" behind the \"}\" in line 4 is missing; put a "
        "\";\" behind "
        "that brace [missing-semicolon]\n");
    row("a pair that is out of use", withBlock("logger", "# level = \"DEBUG\";\nlevel = \"INFO\";\n"),
        "3:3: note: this remark is read as a setting of an odd name, which nobody looks for; this form of "
        "file has no "
        "remarks [disabled-line]\n");
    row("a block that is out of use", "palvestrin: {\n# doc: { paperWidth = 40; };\n};",
        "2:3: note: this remark is read as a block of an odd name, which nobody looks for; this form of file "
        "has no "
        "remarks [disabled-line]\n");
    row("a pair without its equals sign", withBlock("logger", "level \"INFO\";\ntype = \"APPEND\";\n"),
        "4:1: error: \"level ...\" is read as part of the name behind it: \"palvestrin.logger.type\" is "
        "lost; take it "
        "out, or put in the \"=\" or \";\" that it lacks [remark]\n");
    row("a block without its colon", "palvestrin: {\nlogger {\nlevel = \"INFO\";\n};\n};",
        "3:1: error: the block \"logger\" does not begin, for the \":\" in front of its \"{\" is missing: "
        "\"palvestrin.level\" is lost; put a \":\" behind its name [missing-brace]\n");
    row("a pair without its semicolon", withBlock("logger", "level = \"INFO\"\n  type = \"APPEND\";\n"),
        "4:3: error: \"type\" is read as part of the value of \"level\", whose \";\" is missing; put a \";\" "
        "behind "
        "that value [missing-semicolon]\n");
    row("two pairs without semicolons", withBlock("doc", "paperWidth = 40\ntopMargin = 2\nstyle = x;\n"),
        "4:1: error: \"topMargin\" is read as part of the value of \"paperWidth\", whose \";\" is missing; "
        "put a \";\" "
        "behind that value [missing-semicolon]\n"
        "5:1: error: \"style\" is read as part of the value of \"paperWidth\", whose \";\" is missing; put a "
        "\";\" "
        "behind that value [missing-semicolon]\n");
    row("the last pair without its semicolon", "palvestrin: { doc: {\npaperWidth = 40\n};\n};",
        "1:1: warning: the block \"palvestrin\" is never closed; put \"};\" where it ends [unclosed-block]\n"
        "3:1: error: \"}\" is read as part of the value of \"paperWidth\", whose \";\" is missing; put a "
        "\";\" behind "
        "that value [missing-semicolon]\n");
    row("the same in one line", "palvestrin: { doc: { paperWidth = \"40\" }; };",
        "1:1: warning: the block \"palvestrin\" is never closed; put \"};\" where it ends [unclosed-block]\n"
        "1:40: error: \"}\" is read as part of the value of \"paperWidth\", whose \";\" is missing; put a "
        "\";\" behind "
        "that value [missing-semicolon]\n");
    row("two pairs in one line", withBlock("logger", "level = \"INFO\" type = \"APPEND\";\n"),
        "3:16: error: \"type\" is read as part of the value of \"level\", whose \";\" is missing; put a "
        "\";\" behind "
        "that value [missing-semicolon]\n");
    row("a brace without its semicolon",
        "palvestrin: {\nbin: { path = \"/usr/bin\"; }\ndoc: { paperWidth = 40; };\n};",
        "3:1: error: \"doc\" is skipped: the \";\" behind the \"}\" in line 2 is missing; put a \";\" behind "
        "that brace "
        "[missing-semicolon]\n"
        "3:8: error: \"paperWidth\" is skipped: the \";\" behind the \"}\" in line 2 is missing; put a \";\" "
        "behind "
        "that brace [missing-semicolon]\n");
    row("something else behind a brace", "palvestrin: { bin: { path = \"/\"; }\n!; };",
        "2:1: error: \"!\" is skipped: the \";\" behind the \"}\" in line 1 is missing; put a \";\" behind "
        "that brace "
        "[missing-semicolon]\n");
    row("a block without its brace", "palvestrin:\ndoc: {\npaperWidth = 40;\n};",
        "2:1: error: \"doc\" is lost: the block \"palvestrin\" in line 1 has no \"{\" of its own; put a "
        "\"{\" behind "
        "the \":\" of that block [missing-brace]\n"
        "3:1: warning: no program reads \"palvestrin.paperWidth\"; it belongs into a block, such as \"doc\" "
        "[unknown-key]\n");
    row("a last block without its brace", "palvestrin: { bin: { path = \"/\"; };\ndoc: };\n};",
        "1:1: warning: the block \"palvestrin\" is never closed; put \"};\" where it ends [unclosed-block]\n"
        "2:1: error: the block \"doc\" has no \"{\": everything behind its name is dropped; put a \"{\" "
        "behind its name "
        "and the \":\" [missing-brace]\n"
        "2:6: warning: \"}; };\" stands between a block's name and its \"{\" and is dropped; take it out, or "
        "put in "
        "the \"=\" or \";\" that it lacks [stray-text]\n");
    row("a block that is not closed", "palvestrin: {\ndoc: { paperWidth = 40;\n",
        "1:1: warning: the block \"palvestrin\" is never closed; put \"};\" where it ends [unclosed-block]\n"
        "2:1: warning: the block \"doc\" is never closed; put \"};\" where it ends [unclosed-block]\n");
    row("text in front of a brace", withBlock("doc", "paperWidth = 40;\nthe end\n"),
        "4:1: warning: \"the end\" belongs to no setting and is dropped; take it out, or put in the \"=\" or "
        "\";\" that "
        "it lacks [stray-text]\n");
    row("text behind everything", "palvestrin: { doc: { paperWidth = 40; }; };\nthe end",
        "2:1: warning: \"the end\" belongs to no setting and is dropped; take it out, or put in the \"=\" or "
        "\";\" that "
        "it lacks [stray-text]\n");
    row("text in front of a block's brace", "palvestrin: {\ndoc: of the kitchen {\npaperWidth = 40;\n};\n};",
        "2:6: warning: \"of the kitchen\" stands between a block's name and its \"{\" and is dropped; take "
        "it out, or "
        "put in the \"=\" or \";\" that it lacks [stray-text]\n");
    row("a brace too many", "palvestrin: { doc: { paperWidth = 40; }; };\n};\nnote: { };",
        "3:1: error: nothing from here on is read: the \"}\" in line 2 closes no block; take that brace out "
        "[unread]\n");
    row(
        "blocks too deep", "palvestrin: { " + QByteArray("a:{").repeated(1000) + "k=v;",
        QByteArray("1:1: warning: the block \"palvestrin\" is never closed; put \"};\" where it ends "
                   "[unclosed-block]\n"
                   "1:15: warning: no program looks into the block \"palvestrin.a\"; \"palvestrin config "
                   "list\" lists "
                   "the settings that programs read [unknown-block]\n") +
            [] {
                QByteArray lines;
                for (int depth = 0; depth < 1000; ++depth)
                    lines += "1:" + QByteArray::number(15 + 3 * depth) +
                             ": warning: the block \"a\" is never closed; put \"};\" where it ends "
                             "[unclosed-block]\n";
                return lines;
            }() +
            "1:3015: error: nothing from here on is read: blocks nest deeper than 1000 [unread]\n");
    row("a name too long", withBlock("doc", QByteArray(2048, 'n') + " = 1;\n"),
        "3:1: error: a name of 2050 bytes is cut to 2047; is an \"=\" or a \";\" missing in it? "
        "[cut-text]\n");
    row("a name behind too many blanks", withBlock("doc", QByteArray(3000, ' ') + "paperWidth = 40;\n"),
        "3:3001: error: a name of 3012 bytes is cut to 2047; is an \"=\" or a \";\" missing in it? "
        "[cut-text]\n");
    row("a value too long", withBlock("bin", "path = \"" + QByteArray(2100, 'v') + "\";\n"),
        "3:8: error: the value of \"path\" has 2103 bytes and is cut to 2047; is a \";\" missing in it? "
        "[cut-text]\n");
    row("quotes in a value", withBlock("bin", "path = \"/the \"usual\" place\";\n"),
        "3:14: warning: a quote inside the value of \"path\" vanishes: it is read as \"/the usual place\"; "
        "quotes stand "
        "around a value or nowhere [inner-quotes]\n");
    row("a quote that is not closed", withBlock("bin", "path = \"/usr;\n"),
        "3:8: warning: a quote inside the value of \"path\" vanishes: it is read as \"/usr\"; quotes stand "
        "around a "
        "value or nowhere [inner-quotes]\n");
    row("UTF-8", withBlock("db", "dbname = \"Caff\xc3\xa8\";\n"),
        "3:15: warning: the value of \"dbname\" is UTF-8, and is read as Latin-1: \"Caff\xc3\x83\xc2\xa8\"; "
        "save the "
        "file as Latin-1, or use \"palvestrin config set\" [not-latin-1]\n");
    row("a byte order mark", "\xef\xbb\xbfpalvestrin: { doc: { paperWidth = 40; }; };",
        "1:1: error: the file begins with a byte order mark, which is read as part of its first name: no "
        "setting is "
        "found; save the file without it [byte-order-mark]\n");
    row("carriage returns", "palvestrin: {\r\n# x\r\ndoc: {\r\npaperWidth = 40;\r\n};\r\n};\r\n",
        "3:1: error: \"# x\" is read as part of the name behind it: the block \"palvestrin.doc\" is lost; "
        "take it out; "
        "this form of file has no remarks [remark]\n");
}

void ConfigurationTest::otherFiles_data()
{
    addColumns();
    const auto other = [](const char *name, const QByteArray &content, const QByteArray &what) {
        row(name, content,
            "1:1: error: this is no configuration but " + what +
                "; \"palvestrin config set\" begins a new file [no-configuration]\n");
    };
    other("JSON", "{\n \"palvestrin\": { \"doc\": { \"paperWidth\": 40 } }\n}\n", "JSON");
    other("a JSON array", "[{\"a\": 1}]", "JSON");
    other("an INI file", "[printer]\nwidth=40\nmargin=2\n", "an INI file");
    other("settings without blocks", "width = 40;\nmargin = 2;\n", "text without a block \"palvestrin: {\"");
    other("a letter", "Dear printer,\n\nplease print.\n", "text without a block \"palvestrin: {\"");
    other("a program", "int main() { int a = 1; return a == 2 ? 1 : 0; }",
          "text without a block \"palvestrin: {\"");
    other("a picture", QByteArray("\x89PNG\r\n\x1a\n\0\0\0", 11), "a binary file, or text in UTF-16");
    other("UTF-16", QByteArray("\xff\xfep\0a\0", 6), "a binary file, or text in UTF-16");
    other(
        "XML with thousands of attributes",
        "<palvestrin " +
            [] {
                QByteArray attributes;
                for (int i = 0; i < 1001; ++i)
                    attributes += "a" + QByteArray::number(i) + "='' ";
                return attributes;
            }() +
            "/>",
        "XML with more than 1000 attributes in an element");
}

void ConfigurationTest::settings_data()
{
    addColumns();
    row("a second block", "palvestrin: { doc: { paperWidth = 40; }; };\nmore: { doc: { nonsense = 1; }; };",
        "2:1: error: the block \"more\" is never looked into: only the first one of a file is; move its "
        "settings into "
        "the first block [second-block]\n");
    row("a second block of the same name", "palvestrin: { bin: { path = \"/\"; }; };\npalvestrin: { };",
        "2:1: error: the block \"palvestrin\" is never looked into: only the first one of a file is; move it "
        "to the "
        "front, and what is there into it [second-block]\n");
    row("another block in front",
        "mine: { doc: { paperWidth = 40; }; };\npalvestrin: { doc: { style = x; }; };",
        "1:1: warning: no program looks into the block \"mine\"; \"palvestrin config list\" lists the "
        "settings that "
        "programs read [unknown-block]\n"
        "2:1: error: the block \"palvestrin\" is never looked into: only the first one of a file is; move it "
        "to the "
        "front, and what is there into it [second-block]\n");
    row("an empty block in front", "mine: { };\npalvestrin: { doc: { paperWidth = 40; }; };",
        "1:1: warning: no program looks into the block \"mine\"; \"palvestrin config list\" lists the "
        "settings that "
        "programs read [unknown-block]\n");
    row("a misspelled first block", "palvestrni: { doc: { paperWidth = 40; }; };",
        "1:1: warning: no program looks into the block \"palvestrni\"; did you mean \"palvestrin\"? "
        "[unknown-block]\n");
    row("a kind of document that there is not", withBlock("recieptdoc", "paperWidth = 40;\n"),
        "2:1: warning: no program looks into the block \"palvestrin.recieptdoc\"; did you mean "
        "\"receiptdoc\"? "
        "[unknown-block]\n");
    row("a block in the wrong case", withBlock("ReceiptDoc", "paperWidth = 40;\n"),
        "2:1: warning: no program looks into the block \"palvestrin.ReceiptDoc\"; did you mean "
        "\"receiptdoc\"? "
        "[unknown-block]\n");
    row("a block on top that belongs inside", "doc: { paperWidth = 40; };",
        "1:1: warning: no program looks into the block \"doc\"; it belongs into the block \"palvestrin\" "
        "[unknown-block]\n");
    row("a block too deep", withBlock("doc", "columns: { paperWidth = 40; };\n"),
        "3:1: warning: no program looks into the block \"palvestrin.doc.columns\"; \"palvestrin config "
        "list\" lists the "
        "settings that programs read [unknown-block]\n");
    row("an empty block", "palvestrin: { doc: { }; bin: { path = \"/\"; }; };",
        "1:15: note: the block \"doc\" is empty, which is the same as none [no-effect]\n");
    row("a misspelled key", withBlock("receiptdoc", "  paperWitdh = 40;\n"),
        "3:3: warning: no program reads \"palvestrin.receiptdoc.paperWitdh\"; did you mean "
        "\"palvestrin.receiptdoc.paperWidth\"? [unknown-key]\n");
    row("a key that only other blocks have", withBlock("solddoc", "copyNumber = 2;\n"),
        "3:1: warning: no program reads \"palvestrin.solddoc.copyNumber\"; did you mean "
        "\"palvestrin.doc.copyNumber\"? "
        "[unknown-key]\n");
    row("a dotted key", "palvestrin: { doc.paperWidth = 40; bin: { path = \"/\"; }; };",
        "1:15: warning: no program reads \"palvestrin.doc.paperWidth\"; a name has no dots: put "
        "\"paperWidth\" into the "
        "block \"doc\" [unknown-key]\n");
    row("a key outside the blocks", "paperWidth = 40;\npalvestrin: { bin: { path = \"/\"; }; };",
        "1:1: warning: \"paperWidth\" stands outside the blocks, where no program looks; move it into a "
        "block of the "
        "block \"palvestrin\" [unknown-key]\n");
    row("a dotted key outside the blocks",
        "palvestrin.doc.paperWidth = 40;\npalvestrin: { bin: { path = \"/\"; }; };",
        "1:1: warning: \"palvestrin.doc.paperWidth\" stands outside the blocks, where no program looks; move "
        "it into a "
        "block of the block \"palvestrin\" [unknown-key]\n");
    row("a key twice in a block", withBlock("doc", "paperWidth = 40;\npaperWidth = 48;\n"),
        "3:1: warning: palvestrin.doc.paperWidth is given twice: this value \"40\" does not count, the one "
        "in line 4 "
        "does; remove one of them [key-twice]\n");
    row("a key in two blocks of one name",
        "palvestrin: {\ndoc: { paperWidth = 40; };\ndoc: {\npaperWidth = 48; }; };",
        "4:1: warning: palvestrin.doc.paperWidth is given twice: this value \"48\" does not count, the one "
        "in line 2 "
        "does; remove one of them [key-twice]\n");
    row("the same, the first one empty",
        "palvestrin: {\ndoc: { paperWidth = \"\"; };\ndoc: {\npaperWidth = 48; }; };",
        "2:8: warning: palvestrin.doc.paperWidth is given twice: this value \"\" does not count, the one in "
        "line 4 "
        "does; remove one of them [key-twice]\n");
    row("a flag that is none", withBlock("doc", "printDate = \"yes\";\n"),
        "3:13: warning: \"yes\" counts as false for palvestrin.doc.printDate; give true or false, in small "
        "letters "
        "[bad-value]\n");
    row("a flag in capitals", withBlock("doc", "printDate = \"True\";\n"),
        "3:13: warning: \"True\" counts as false for palvestrin.doc.printDate; give true or false, in small "
        "letters "
        "[bad-value]\n");
    row("a number that is none", withBlock("doc", "topMargin = \"4O\";\n"),
        "3:13: warning: \"4O\" counts as 0 for palvestrin.doc.topMargin; give a whole number from 0 to 999 "
        "[bad-value]\n");
    row("a width that is none", withBlock("doc", "paperWidth = \"4O\";\n"),
        "3:14: warning: \"4O\" counts as 32 for palvestrin.doc.paperWidth; give a whole number from 0 to 999 "
        "[bad-value]\n");
    row("a width that nobody has", withBlock("doc", "paperWidth = \"4000\";\n"),
        "3:14: warning: \"4000\" is no sensible value for palvestrin.doc.paperWidth; give a whole number "
        "from 0 to 999 "
        "[bad-value]\n");
    row("a width below zero", withBlock("doc", "paperWidth = \"-1\";\n"),
        "3:14: warning: \"-1\" is no sensible value for palvestrin.doc.paperWidth; give a whole number from "
        "0 to 999 "
        "[bad-value]\n");
    row("a level that is none", withBlock("logger", "level = \"LOUD\";\n"),
        "3:9: warning: \"LOUD\" counts as DEBUG for palvestrin.logger.level; give one of DEBUG, INFO, "
        "WARNING, ERROR, "
        "FATAL [bad-value]\n");
    row("a log that is none", withBlock("logger", "type = \"YES\";\n"),
        "3:8: warning: \"YES\" counts as no log for palvestrin.logger.type; give APPEND or OVERWRITE "
        "[bad-value]\n");
    row("telephone without customer", withBlock("deliverydoc", "printTelephone = true;\n"),
        "3:1: warning: palvestrin.deliverydoc.printTelephone does nothing while printCustomer is off; set "
        "printCustomer "
        "to \"true\", or take this one out [needs-flag]\n");
    row("telephone with customer",
        withBlock("deliverydoc", "printTelephone = true;\nprintCustomer = true;\n"), "");
    row("margin without geometry", withBlock("doc", "topMargin = 2;\n"),
        "3:1: warning: palvestrin.doc.topMargin does nothing while printGeometry is off; set printGeometry "
        "to \"true\", "
        "or take this one out [needs-flag]\n");
    row("a style", withBlock("doc", "style = \"plain\";\n"),
        "3:1: note: palvestrin.doc.style changes nothing on paper; no effect: each document has its own "
        "layout "
        "[no-effect]\n");
    row("a setting of other documents", withBlock("receiptdoc", "descriptionWidth = 20;\n"),
        "3:1: note: palvestrin.receiptdoc.descriptionWidth changes nothing on paper; none of the documents "
        "of this "
        "block asks for it [no-effect]\n");
    row("a setting of other documents that is off",
        withBlock("fiscaldoc", "printDate = false; priceFieldWidth = 0;\n"), "");
}

void ConfigurationTest::columns_data()
{
    addColumns();
    const QByteArray columns = "quantityFieldWidth = 3; priceFieldWidth = 8; totalPriceFieldWidth = 8;\n";
    row("one is left", withBlock("receiptdoc", columns + "paperWidth = 23;\n"), "");
    row("none is left", withBlock("receiptdoc", columns + "paperWidth = 22;\n"),
        "4:14: error: on the paper \"Receipt\", quantityFieldWidth 3 + priceFieldWidth 8 + "
        "totalPriceFieldWidth 8 and 3 more take "
        "22 of 22 characters: nothing is left for the description; make the paper wider or the columns "
        "narrower "
        "[no-room]\n");
    row("the usual width", withBlock("receiptdoc", "priceFieldWidth = 20; totalPriceFieldWidth = 8;\n"), "");
    row("all of the usual width",
        withBlock("receiptdoc", "priceFieldWidth = 20; totalPriceFieldWidth = 9;\n"),
        "3:46: error: on the paper \"Receipt\", quantityFieldWidth 0 + priceFieldWidth 20 + "
        "totalPriceFieldWidth 9 and 3 "
        "more take 32 of 32 characters: nothing is left for the description; make the paper wider or the "
        "columns narrower "
        "[no-room]\n");
    row("a ticket", withBlock("doc", "quantityFieldWidth = 40;\n"),
        "3:22: error: on the paper \"Kitchen ticket\", quantityFieldWidth 40 and 5 more take 45 of 32 "
        "characters: "
        "descriptions are not cut, and run over the edge; make the paper wider or the columns narrower "
        "[no-room]\n");
    row("a statement", withBlock("reportdoc", "paperWidth = 10;\npriceFieldWidth = 12;\n"),
        "3:14: error: on the paper \"Statement of account\", priceFieldWidth 12 and 18 more take 30 of 10 "
        "characters: "
        "descriptions are not cut, and run over the edge; make the paper wider or the columns narrower "
        "[no-room]\n");
    row("columns that nobody has", withBlock("receiptdoc", "priceFieldWidth = 100000;\n"),
        "3:19: warning: \"100000\" is no sensible value for palvestrin.receiptdoc.priceFieldWidth; give a "
        "whole number "
        "from 0 to 999 [bad-value]\n");
}

void ConfigurationTest::xml_data()
{
    addColumns();
    row("a misspelled key", "<palvestrin>\n  <doc paperWitdh='40'\n    topMargin=\"4O\"/>\n</palvestrin>",
        "2:8: warning: no program reads \"palvestrin.doc.paperWitdh\"; did you mean "
        "\"palvestrin.doc.paperWidth\"? "
        "[unknown-key]\n"
        "3:16: warning: \"4O\" counts as 0 for palvestrin.doc.topMargin; give a whole number from 0 to 999 "
        "[bad-value]\n");
    row("a misspelled block", "<palvestrin>\n  <dok paperWidth='40'/>\n</palvestrin>",
        "2:3: warning: no program looks into the block \"palvestrin.dok\"; did you mean \"doc\"? "
        "[unknown-block]\n");
    row("a key in two elements", "<palvestrin>\n<doc paperWidth='40'/>\n<doc paperWidth='48'/></palvestrin>",
        "3:6: warning: palvestrin.doc.paperWidth is given twice: this value \"48\" does not count, the one "
        "in line 2 "
        "does; remove one of them [key-twice]\n");
    row("a key of the outermost element", "<palvestrin paperWidth='40'><bin path='/'/></palvestrin>",
        "1:13: warning: no program reads \"palvestrin.paperWidth\"; it belongs into a block, such as \"doc\" "
        "[unknown-key]\n");
    row("text", "<palvestrin><bin path='/'/>\n paperWidth = 40</palvestrin>",
        "1:28: warning: \"paperWidth ...\" is text between elements, which sets nothing; settings are "
        "attributes "
        "[stray-text]\n");
    row("a declaration", "<?xml version='1.0'?>\n<palvestrin><bin path='/'/></palvestrin>",
        "1:1: error: nothing is found in an XML configuration that begins with a declaration or a remark; "
        "take out what "
        "stands in front of the first element [xml-front]\n");
    row("a remark in front", "<!-- ours -->\n<palvestrin><bin path='/'/></palvestrin>",
        "1:1: error: nothing is found in an XML configuration that begins with a declaration or a remark; "
        "take out what "
        "stands in front of the first element [xml-front]\n");
    row("a document type in front", "<!DOCTYPE p>\n<palvestrin><bin path='/'/></palvestrin>",
        "1:1: error: nothing is found in an XML configuration that begins with a declaration or a remark; "
        "take out what "
        "stands in front of the first element [xml-front]\n");
    row("malformed", "<palvestrin>\n<doc paperWidth='40'></palvestrin>",
        "2:35: error: nothing of this file is read: Opening and ending tag mismatch [xml-malformed]\n");
    row("too deep", QByteArray("<a>").repeated(1001),
        "1:3004: error: nothing of this file is read: elements nest deeper than 1000 "
        "[xml-malformed]\n");
    row("no room", "<palvestrin><receiptdoc priceFieldWidth='20'\n paperWidth='22'/></palvestrin>",
        "2:14: error: on the paper \"Receipt\", quantityFieldWidth 0 + priceFieldWidth 20 + "
        "totalPriceFieldWidth 0 and 3 more take "
        "23 of 22 characters: descriptions are not cut, and run over the edge; make the paper wider or the "
        "columns narrower "
        "[no-room]\n");
}

void ConfigurationTest::passwords_data()
{
    QTest::addColumn<QByteArray>("content");
    const auto row = [](const char *name, const QByteArray &lines) {
        QTest::newRow(name) << withBlock("db", lines);
    };
    row("twice", "password = \"sesame\";\npassword = \"other\";\n");
    row("in UTF-8", "password = \"sesame\xc3\xa8\";\n");
    row("without its equals sign", "password \"sesame\";\nhostname = \"x\";\n");
    row("misspelled and without its equals sign", "pasword \"sesame\";\nhostname = \"x\";\n");
    row("without its equals sign and quotes", "password sesame;\nhostname = \"x\";\n");
    row("in front of a brace", "password sesame\n");
    row("in front of a block", "password sesame: {\n a = 1;\n};\n");
    row("behind a brace", "a: { b = 1; } password = \"sesame\";\n");
    row("in another value", "dbname = x password sesame \"y\";\n");
    row("swallowed", "dbname = \"x\"\npassword = \"sesame\";\n");
    row("in a value's rest", "dbname = \"x\" } password sesame;\n");
    row("with quotes inside", "password = \"ses\"ame\";\n");
    row("misspelled twice", "passwrod = \"sesame\";\npasswrod = \"ses\"ame\";\n");
}
/// A finding is shown to whoever looks over the shoulder.
void ConfigurationTest::passwords()
{
    QFETCH(QByteArray, content);
    const ConfigurationFindings findings(content);
    QVERIFY(findings.areSerious());
    QVERIFY2(!findings.asText().contains("sesame"), findings.asText().constData());
}

void ConfigurationTest::surroundings()
{
    const QByteArray content =
        "palvestrin: {\nlanguage: { basedir = \"/there\"; file = \"/\"; };\n"
        "logger: { basedir = \"/gone\"; filename = \"a.log\"; type = \"append\"; };\n};\n";
    Machine machine;
    QCOMPARE(
        ConfigurationFindings(content, &machine).asText(),
        QByteArray(
            "2:40: warning: there is no catalogue for the language of this run at \"/there\" followed by "
            "\"/\": the labels are English; correct palvestrin.language.basedir, or install the catalogue "
            "[no-catalogue]\n"
            "3:21: warning: the file \"/gone/a.log\" cannot be written: there is no log; make the folder, or "
            "correct palvestrin.logger.basedir and palvestrin.logger.filename [no-log]\n"));
    QCOMPARE(ConfigurationFindings(content).asText(), QByteArray());
    machine.isComplete = true;
    QCOMPARE(ConfigurationFindings(content, &machine).asText(), QByteArray());
    const Machine other;
    QCOMPARE(ConfigurationFindings(withBlock("logger", "level = INFO;\n"), &other).asText(), QByteArray());
    QCOMPARE(
        ConfigurationFindings(withBlock("logger", "type = OVERWRITE;\n"), &other).asText(),
        QByteArray(
            "3:8: warning: the file \"/\" cannot be written: there is no log; make the folder, or correct "
            "palvestrin.logger.basedir and palvestrin.logger.filename [no-log]\n"));
}

void ConfigurationTest::theUsersOwnFileIsText()
{
    const Machine machine;
    QCOMPARE(
        ConfigurationFindings("<palvestrin><doc paperWidth='40'/></palvestrin>", &machine).asText(),
        QByteArray("1:1: error: this is no configuration but XML, and the programs read this file as text; "
                   "\"palvestrin config convert\" makes it text [no-configuration]\n"));
}

void ConfigurationTest::aHugeFileIsToldInOneLine()
{
    QCOMPARE(
        ConfigurationFindings("palvestrin: {" + QByteArray(1024 * 1024, '\n')).asText(),
        QByteArray(
            "1:1: error: this is no configuration but a file of more than 1 MiB; \"palvestrin config set\" "
            "begins a new file [no-configuration]\n"));
}

/// Long files of what takes longest to look into.
void ConfigurationTest::hostileFilesTakeNoTime_data()
{
    QTest::addColumn<QByteArray>("content");
    const auto row = [](const char *name, const QByteArray &front, const QByteArray &piece,
                        const QByteArray &end = {}) {
        QTest::newRow(name) << front + piece.repeated(300'000 / piece.size()) + end;
    };
    row("misspelled keys", "palvestrin: { doc: {", "paperWitdh=1;");
    row("misspelled blocks", "palvestrin: {", "docc:{a=1;};");
    row("known keys", "palvestrin: { doc: {", "paperWidth=1;");
    row("lines in a value", "palvestrin: { doc: { a =", "\nb=");
    row("quotes in a value", "palvestrin: { doc: { a =", "\"x");
    row("quotes and blanks in a value", "palvestrin: { doc: { a =", "\" \"");
    row("names in skipped text", "palvestrin: { doc: { a = 1; }", "\nb:");
    row("line ends in a name", "palvestrin: { doc: {", "\na ");
    row("blocks in blocks", "palvestrin: {", "a:{");
    row("letters", "palvestrin: { doc: { a =\n", "a");
    row("elements", "<palvestrin>", "<a b='1'/>", "</palvestrin>");
    row("open elements", "<palvestrin>", "<a>");
}
void ConfigurationTest::hostileFilesTakeNoTime()
{
    QFETCH(QByteArray, content);
    struct Counter : check::FindingSink
    {
        void take(const check::Finding & /*finding*/) override { ++count; }
        qsizetype count = 0;
    } counter;
    QBuffer buffer(&content);
    buffer.open(QIODevice::ReadOnly);
    QElapsedTimer timer;
    timer.start();
    check::checkConfiguration(buffer, counter);
    QVERIFY2(timer.elapsed() < 20'000, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(counter.count > 0);
}

QTEST_GUILESS_MAIN(ConfigurationTest)
#include "configuration_test.moc"
