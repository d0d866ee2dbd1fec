#include "capturedoutput.h"
#include "exampleconfig.h"
#include "libconfig.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class LibconfigReadTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir folder;

    QString write(const QByteArray &content)
    {
        const QString path = folder.filePath(u"test.conf"_s);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write %s", qPrintable(path));
        return path;
    }
    QString lookupIn(const QByteArray &content, const QString &key, const QString &type = u"cfg"_s)
    {
        return libconfig::Config(write(content), type).lookup(key);
    }

private Q_SLOTS:
    void readsTheExample()
    {
        const libconfig::Config config(write(example), u"cfg"_s);
        QCOMPARE(config.lookup(u"palvestrin.logger.filename"_s), u"palvestrin.log"_s);
        QCOMPARE(config.lookup(u"palvestrin.logger.level"_s), u"INFO"_s);
        QCOMPARE(config.lookup(u"palvestrin.language.file"_s), u"/"_s);
        QCOMPARE(config.lookup(u"palvestrin"_s), QString());
        QCOMPARE(config.lookup(u"palvestrin.logger"_s), QString());
        QCOMPARE(config.lookup(u"palvestrin.logger.missing"_s), QString());
        QCOMPARE(config.lookup(u"Palvestrin.logger.level"_s), QString());
        QCOMPARE(config.lookup(QString()), QString());
        QCOMPARE(config.lookup(u"."_s), QString());
    }

    void values_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<QString>("expected");
        QTest::newRow("quotes anywhere") << QByteArray(R"(key = "a"b"c";)") << u"abc"_s;
        QTest::newRow("stripped") << QByteArray("key =  spaced value ;") << u"spaced value"_s;
        QTest::newRow("delimiters inside") << QByteArray(R"(key = "x=1:2";)") << u"x=1:2"_s;
        QTest::newRow("braces inside") << QByteArray("key = {a}:{b};") << u"{a}:{b}"_s;
        QTest::newRow("quoted blanks stay") << QByteArray("key = \" a \" ;") << u" a "_s;
        QTest::newRow("only quotes") << QByteArray("key = \"\"\"\";") << QString();
        QTest::newRow("all white space") << QByteArray("key = \t\n\r\f\v;") << QString();
        QTest::newRow("line break inside") << QByteArray("key = a\nb;") << u"a\nb"_s;
        QTest::newRow("latin-1") << QByteArray("key = caff\xe8;") << u"caffè"_s;
        QTest::newRow("utf-8 is read as latin-1") << QByteArray("key = \xc3\xa8;") << u"Ã¨"_s;
        QTest::newRow("no-break space stays") << QByteArray("key = \xa0;") << u"\u00a0"_s;
        QTest::newRow("last value wins") << QByteArray("key = a; key = b;") << u"b"_s;
        QTest::newRow("no line break needed") << QByteArray("x=1;key=2;y=3;") << u"2"_s;
        QTest::newRow("second value in a value") << QByteArray("key = a = b;") << u"a = b"_s;
        QTest::newRow("a remark joins the key") << QByteArray("# note\n    key = 1;") << QString();
        QTest::newRow("a remark behind joins the next key")
            << QByteArray("x = 1; // y\nkey = 1;") << QString();
        QTest::newRow("missing semicolon swallows") << QByteArray("x = 1\nkey = 2;") << QString();
    }
    void values()
    {
        QFETCH(QByteArray, line);
        QFETCH(QString, expected);
        QCOMPARE(lookupIn("block: { " + line + " };", u"block.key"_s), expected);
    }

    void trees_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const QByteArray &content, const QString &key,
                            const QString &expected) { QTest::newRow(name) << content << key << expected; };
        row("value cut off by the end", "p: { k = last", u"p.k"_s, u"last"_s);
        row("block cut off by the end", "p: { k = v;", u"p.k"_s, u"v"_s);
        row("block without brace", "p: k = v;", u"p.k"_s, QString());
        row("text between name and brace", "p: ignored = {k = v;};", u"p.k"_s, u"v"_s);
        row("remark key by its glued name", "p: {# note\n    level = X;};", u"p.# note\n    level"_s, u"X"_s);
        row("empty block absent", "p: { db: { }; x = 1; };", u"p.db.dbname"_s, QString());
        row("sibling after empty block", "p: { db: { }; x = 1; };", u"p.x"_s, u"1"_s);
        row("empty first block does not hide", "e: { }; p: { k = v; };", u"p.k"_s, u"v"_s);
        row("only the first block", "a: { k = 1; }; p: { k = v; };", u"p.k"_s, QString());
        row("nameless first block hides", ": { k = 1; }; p: { k = v; };", u"p.k"_s, QString());
        row("nameless block by its name", ": { k = 1; };", u".k"_s, u"1"_s);
        row("top-level pair never found", "k = v; p: { k = w; };", u"k"_s, QString());
        row("top-level pair does not hide", "k = v; p: { k = w; };", u"p.k"_s, u"w"_s);
        row("first sibling with a value wins", "p: { b: { k = ; }; b: { k = 2; }; b: { k = 3; }; };",
            u"p.b.k"_s, u"2"_s);
        row("only the first top-level of one name", "p: { k = 1; }; p: { m = 2; };", u"p.m"_s, QString());
        row("brace without semicolon swallows", "p: { a: { k = 1; } x = 2; y = 3; };", u"p.x"_s, QString());
        row("brace without semicolon, after", "p: { a: { k = 1; } x = 2; y = 3; };", u"p.y"_s, u"3"_s);
        row("top-level brace stops", "} ; p: { k = v; };", u"p.k"_s, QString());
        row("block of only an empty block", "p: { a: { }; }; q: { k = 1; };", u"q.k"_s, QString());
        row("nested", "p: { a: { b: { c = deep; }; }; };", u"p.a.b.c"_s, u"deep"_s);
        row("empty third component", "p: { b = v; };", u"p.b..c"_s, u"v"_s);
        row("trailing dot", "p: { b = v; };", u"p.b."_s, u"v"_s);
        row("attribute beside a block of its name", "p: { b = v; b: { c = w; }; };", u"p.b"_s, u"v"_s);
        row("a key with a dot is out of reach", "p: { a.b = v; };", u"p.a.b"_s, QString());
    }
    void trees()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, key);
        QFETCH(QString, expected);
        QCOMPARE(lookupIn(content, key), expected);
    }

    void neverFailsWhereTheFileEnds()
    {
        const QByteArray whole = QByteArray(example) + "x: { y: { z = 1; } };";
        for (qsizetype size = 0; size <= whole.size(); ++size) {
            const libconfig::Config config(write(whole.first(size)), u"cfg"_s);
            const QString level = config.lookup(u"palvestrin.logger.level"_s);
            QVERIFY2(u"INFO"_s.startsWith(level), qPrintable(level));
        }
    }

    void longTextsAreCut()
    {
        const QByteArray value(5000, 'v');
        QCOMPARE(lookupIn("p: { k = " + value + "; };", u"p.k"_s),
                 QString(2046, u'v')); // one byte was the blank
        QCOMPARE(lookupIn("p: { " + QByteArray(5000, 'n') + " = 1; k = 2; };", u"p.k"_s), u"2"_s);
    }

    void deepNestingEndsTheReading()
    {
        const QByteArray deep = QByteArray("p: { k = v; ") + QByteArray("a:{").repeated(1000000);
        QCOMPARE(lookupIn(deep, u"p.k"_s), u"v"_s);
    }

    void aMissingFileIsReported()
    {
        const QString path = folder.filePath(u"absent.conf"_s);
        CapturedOutput output;
        const libconfig::Config config(path, u"cfg"_s);
        QCOMPARE(output.bytes(),
                 "Error in the method FileReader::open( " + path.toUtf8() + " ): File Not Found\n");
        QCOMPARE(config.lookup(u"palvestrin.logger.level"_s), QString());
    }

    void aFolderReadsAsEmpty()
    {
        const libconfig::Config config(folder.path(), u"cfg"_s);
        QCOMPARE(config.lookup(u"p.k"_s), QString());
    }

    void otherTypesReadNothing()
    {
        QCOMPARE(lookupIn("p: { k = v; };", u"p.k"_s, u"CFG"_s), QString());
        QCOMPARE(lookupIn("<p k='v'/>", u"p.k"_s, u"XML"_s), QString());
        QCOMPARE(libconfig::Config().lookup(u"p.k"_s), QString());
    }

    void readsXml()
    {
        const QByteArray xml = R"(<palvestrin><db dbname="shop"/></palvestrin>)";
        QCOMPARE(lookupIn(xml, u"palvestrin.db.dbname"_s, u"xml"_s), u"shop"_s);
        QCOMPARE(lookupIn("<!-- remark -->" + xml, u"palvestrin.db.dbname"_s, u"xml"_s), QString());
        QCOMPARE(lookupIn("<!-- remark --><x>" + xml + "</x>", u"palvestrin.db.dbname"_s, u"xml"_s),
                 QString());
        // A declaration is a node of the document like any other.
        QCOMPARE(lookupIn("<?xml version='1.0'?>" + xml, u"palvestrin.db.dbname"_s, u"xml"_s), QString());
        QCOMPARE(lookupIn("<palvestrin><db dbname='shop'></palvestrin>", u"palvestrin.db.dbname"_s, u"xml"_s),
                 QString());
        QCOMPARE(lookupIn(QByteArray("<a>").repeated(1000000), u"a.b"_s, u"xml"_s), QString());
        // An undeclared prefix is no error for the tree, so it must not end the guard against depth either.
        const QByteArray deep = QByteArray("<a>").repeated(1000000) + QByteArray("</a>").repeated(1000000);
        QCOMPARE(lookupIn("<x:p k='v'>" + deep + "</x:p>", u"x:p.k"_s, u"xml"_s), QString());
    }

    void aMissingXmlFileIsSilent_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("absent") << folder.filePath(u"absent.xml"_s);
        QTest::newRow("no name") << QString();
    }
    void aMissingXmlFileIsSilent()
    {
        QFETCH(QString, name);
        QTest::failOnWarning(QRegularExpression(u".*"_s));
        CapturedOutput output;
        const libconfig::Config config(name, u"xml"_s);
        QCOMPARE(config.lookup(u"p.k"_s), QString());
        QCOMPARE(output.bytes(), QByteArray());
    }

    /// A caller may take the steps of the reading one by one: each leaves the stream where the next begins.
    void readsInSteps()
    {
        libconfig::Config config(folder.filePath(u"absent.xml"_s), u"none"_s);
        QVERIFY(config.openFile(write("skipped {k = v; q: { m = w; }; } behind ; x { k = 2;")));
        QVERIFY(config.jump('{'));
        const QDomElement first = config.root();
        config.loadFile(u"p"_s, first);
        QCOMPARE(config.lookup(u"p.k"_s), u"v"_s);
        QCOMPARE(config.lookup(u"p.q.m"_s), u"w"_s);
        QVERIFY(config.jump('{'));
        config.loadFile(u"p2"_s, first);
        QCOMPARE(first.lastChildElement().tagName(), u"p2"_s);
        QCOMPARE(first.lastChildElement().attribute(u"k"_s), u"2"_s);
        QVERIFY(!config.jump(';')); // the file has ended
        config.closeFile();
        QVERIFY(!config.jump(';'));
    }

    void aBraceOutsideAllBlocksLeavesTheFileOpen()
    {
        libconfig::Config config(write("k = 1; } note ; rest: { m = 2; };"), u"cfg"_s);
        QCOMPARE(config.root().attribute(u"k"_s), u"1"_s);
        QVERIFY(config.jump(':'));
        QVERIFY(config.jump('{'));
        config.loadFile(u"rest"_s, config.root());
        QCOMPARE(config.lookup(u"rest.m"_s), u"2"_s);
    }

    void readsFromMemory()
    {
        const QString path = folder.filePath(u"absent/c.conf"_s);
        CapturedOutput output;
        libconfig::Config config;
        config.readContent(example, path, u"cfg"_s);
        QCOMPARE(config.lookup(u"palvestrin.logger.level"_s), u"INFO"_s);
        QCOMPARE(config.root().tagName(), path);
        config.readContent("<palvestrin a='1'/>", path, u"xml"_s);
        QCOMPARE(config.lookup(u"palvestrin.a"_s), u"1"_s);
        QCOMPARE(config.lookup(u"palvestrin.logger.level"_s), QString());
        config.readContent("p:{a\0b = \"\xe8\";};"_ba, path, u"cfg"_s);
        QCOMPARE(config.lookup(u"p.a\0b"_s), u"\u00e8"_s);
        config.readContent(example, path, u"none"_s);
        QCOMPARE(config.lookup(u"palvestrin.logger.level"_s), QString());
        QCOMPARE(output.bytes(), "");
    }

    void anEmptyNameIsNoFileAndNotTalkedAbout()
    {
        QTest::failOnWarning(QRegularExpression(u".*"_s));
        QCOMPARE(libconfig::Config(QString(), u"xml"_s).lookup(u"p.k"_s), QString());
    }

    void readingAgainReplacesTheTree()
    {
        libconfig::Config config(write("} ; rest"), u"cfg"_s); // leaves the file open
        config.readFile(write("p: { k = v; };"), u"cfg"_s);
        QCOMPARE(config.lookup(u"p.k"_s), u"v"_s);
    }
};

QTEST_GUILESS_MAIN(LibconfigReadTest)
#include "libconfig_read_test.moc"
