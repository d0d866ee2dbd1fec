#include "capturedoutput.h"
#include "exampleconfig.h"
#include "libconfig.h"
#include "orderedattributes.h"
#include "scratchfolder.h"

#include <QBuffer>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>
#include <QTextStream>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char exampleXml[] = R"(
<palvestrin>

    <language
        basedir = "/opt/palvestrin/translations"
        file = "/">
    </language>

    <logger
        level = "INFO"
        basedir = "/var/log"
        filename = "palvestrin.log"
        type = "APPEND">
    </logger>
</palvestrin>
)";

} // namespace

class LibconfigWriteTest : public QObject
{
    Q_OBJECT

private:
    const ScratchFolder folder{};

    QString inPath() const { return folder.path(u"in.conf"_s); }
    QString outPath() const { return folder.path(u"out.conf"_s); }
    void write(const QByteArray &content) const { folder.write(u"in.conf"_s, content); }
    QByteArray written() const { return folder.read(u"out.conf"_s); }

    /// `content`, read in the form `type` and written in the text form.
    QByteArray asText(const QByteArray &content, const QString &type = u"cfg"_s)
    {
        write(content);
        libconfig::Config config(inPath(), type);
        return config.buildConfigFile(outPath()) ? written() : QByteArray("not written");
    }
    QByteArray asXml(const QByteArray &content, const QString &type = u"cfg"_s)
    {
        write(content);
        libconfig::Config config(inPath(), type);
        return config.buildConfigXmlFile(outPath()) ? written() : QByteArray("not written");
    }

private Q_SLOTS:
    void textForm_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QByteArray>("written");
        const auto row = [](const char *name, const QByteArray &content, const QByteArray &written) {
            QTest::newRow(name) << content << written;
        };
        row("the example", example, example);
        row("an empty file", "", "");
        row("a pair", "p:{k=v;};", "p: \n{\n    k = \"v\";\n};\n\n");
        row("an empty value", "p:{k=;};", "p: \n{\n    k = \"\";\n};\n\n");
        row("nested blocks", "p:{a:{b:{k=v;};};};",
            "p: \n{\n    a: \n    {\n        b: \n        {\n            k = \"v\";\n        };\n\n"
            "    };\n\n};\n\n");
        row("pairs go before blocks", "p:{a:{k=1;};x=2;};",
            "p: \n{\n    x = \"2\";\n    a: \n    {\n        k = \"1\";\n    };\n\n};\n\n");
        row("the root's pairs come first, not indented", "p:{k=v;};top=1;other=2;",
            "top = \"1\";\nother = \"2\";\np: \n{\n    k = \"v\";\n};\n\n");
        row("only root pairs", "top=1;", "top = \"1\";\n");
        row("later top-level blocks are not written", "p:{k=v;};q:{k=w;};top=1;r:{k=x;};",
            "top = \"1\";\np: \n{\n    k = \"v\";\n};\n\n");
        row("pairs in the order of the file", "p:{zebra=1;apple=2;mango=3;b=4;a=5;zebra=6;};",
            "p: \n{\n    zebra = \"6\";\n    apple = \"2\";\n    mango = \"3\";\n    b = \"4\";\n    a = "
            "\"5\";\n};\n\n");
        row("siblings of one name stay apart", "p:{a:{k=1;};a:{k=2;};};",
            "p: \n{\n    a: \n    {\n        k = \"1\";\n    };\n\n    a: \n    {\n        k = \"2\";\n    "
            "};\n\n};\n\n");
        row("latin-1 bytes", "p:{k=caff\xe8 \xa4;\xe0=\xff;};",
            "p: \n{\n    k = \"caff\xe8 \xa4\";\n    \xe0 = \"\xff\";\n};\n\n");
        row("utf-8 bytes", "p:{k=caff\xc3\xa8;};", "p: \n{\n    k = \"caff\xc3\xa8\";\n};\n\n");
        row("a line break in a value", "p:{k=a\n  b;};", "p: \n{\n    k = \"a\n  b\";\n};\n\n");
        row("blanks inside quotes", "p:{k=\" v \";};", "p: \n{\n    k = \" v \";\n};\n\n");
        row("a remark glued to a key", "p:{# note\n  k=v;};", "p: \n{\n    # note\n  k = \"v\";\n};\n\n");
        row("a nameless block", ":{=v;};", ": \n{\n     = \"v\";\n};\n\n");
        row("quotes are gone", "p:{k=\"a\"b\"c\";};", "p: \n{\n    k = \"abc\";\n};\n\n");
        row("a remark at the end is gone", "p:{k=v; # note\n};", "p: \n{\n    k = \"v\";\n};\n\n");
        row("text before the brace is gone", "p: note {k=v;};", "p: \n{\n    k = \"v\";\n};\n\n");
        row("an empty block is gone", "p:{k=v;a:{};};", "p: \n{\n    k = \"v\";\n};\n\n");
    }
    void textForm()
    {
        QFETCH(QByteArray, content);
        QFETCH(QByteArray, written);
        QCOMPARE(asText(content), written);
        QCOMPARE(asText(written), written);
    }

    void xmlForm_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QByteArray>("written");
        QTest::newRow("the example") << QByteArray(example) << QByteArray(exampleXml);
        QTest::newRow("pairs beside blocks") << QByteArray("p:{a:{};b:{k=1;};z=2;y=3;};")
                                             << QByteArray("\n<p\n    z = \"2\"\n    y = \"3\">\n"
                                                           "\n    <b\n        k = \"1\">\n    </b>\n</p>\n");
        QTest::newRow("the root's pairs in text syntax")
            << QByteArray("top=1;other=2;p:{k=v;};")
            << QByteArray("top = \"1\";\nother = \"2\";\n\n<p\n    k = \"v\">\n</p>\n");
        QTest::newRow("later blocks are not written")
            << QByteArray("p:{k=v;};q:{k=w;};") << QByteArray("\n<p\n    k = \"v\">\n</p>\n");
        QTest::newRow("latin-1 becomes utf-8")
            << QByteArray("p:{k=\xe8;};") << QByteArray("\n<p\n    k = \"\xc3\xa8\">\n</p>\n");
        QTest::newRow("values as they stand")
            << QByteArray("p:{k=a<b & c>d;};") << QByteArray("\n<p\n    k = \"a<b & c>d\">\n</p>\n");
        QTest::newRow("an empty file") << QByteArray() << QByteArray();
    }
    void xmlForm()
    {
        QFETCH(QByteArray, content);
        QFETCH(QByteArray, written);
        QCOMPARE(asXml(content), written);
    }

    void xmlRoundTrip()
    {
        QCOMPARE(asXml(exampleXml, u"xml"_s), exampleXml);
        QCOMPARE(asText(exampleXml, u"xml"_s), example);
        // The order of the file, whatever the namespaces; attributes that only look like them too.
        const QByteArray many =
            "\n<x:p\n    z = \"1\"\n    xmlns:x = \"u\"\n    b = \"2\"\n    a = \"3\"\n"
            "    y = \"4\">\n\n    <q\n        n = \"5\"\n        m = \"6\">\n    </q>\n</x:p>\n";
        QCOMPARE(asXml(many, u"xml"_s), many);
    }

    void randomTreesComeBack()
    {
        QRandomGenerator random(20070318);
        const auto text = [&random](int least, const QByteArray &forbidden) {
            QString result;
            for (int length = random.bounded(least, 12); result.size() < length;) {
                const char c = char(random.bounded(256));
                if (!forbidden.contains(c))
                    result += QChar::fromLatin1(c);
            }
            return result;
        };
        const auto name = [&] { return u'n' + text(0, ":=}") + u'n'; };
        for (int round = 0; round < 300; ++round) {
            libconfig::Config config(inPath(), u"none"_s);
            QDomElement block = config.appendBlock(config.root(), name());
            for (int step = 0; step < 20; ++step) {
                libconfig::OrderedAttributes(block).set(name(), text(0, "\";"));
                if (random.bounded(3) == 0)
                    block = config.appendBlock(block, name());
                else if (random.bounded(4) == 0 && block.parentNode() != config.root())
                    block = block.parentNode().toElement();
            }
            libconfig::OrderedAttributes(block).set(name(), QString()); // a block must not stay empty
            QVERIFY(config.buildConfigFile(outPath()));
            const QByteArray once = written();
            QCOMPARE(asText(once), once);
        }
    }

    void whatIsNoElementIsNotWritten()
    {
        QCOMPARE(asXml("<p k='v'><!-- note -->text<?do it?><q m='w'/></p>", u"xml"_s),
                 "\n<p\n    k = \"v\">\n\n    <q\n        m = \"w\">\n    </q>\n</p>\n");
        QCOMPARE(asXml("<!-- note --><p k='v'/>", u"xml"_s), ""); // the remark stands where the block should
    }

    void charactersBeyondLatin1BecomeQuestionMarksAndAreTold_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("in a value") << QByteArray("<p k='5 \xe2\x82\xac'/>")
                                    << QByteArray("p: \n{\n    k = \"5 ?\";\n};\n\n");
        QTest::newRow("in a key") << QByteArray("<p \xc4\x80='v'/>")
                                  << QByteArray("p: \n{\n    ? = \"v\";\n};\n\n");
        QTest::newRow("in a block's name")
            << QByteArray("<\xc4\x80 k='v'/>") << QByteArray("?: \n{\n    k = \"v\";\n};\n\n");
    }
    void charactersBeyondLatin1BecomeQuestionMarksAndAreTold()
    {
        QFETCH(QByteArray, xml);
        QFETCH(QByteArray, text);
        write(xml);
        libconfig::Config config(inPath(), u"xml"_s);
        QVERIFY(!config.buildConfigFile(outPath()));
        QCOMPARE(written(), text);
        QBuffer memory;
        QVERIFY(memory.open(QIODevice::WriteOnly));
        QVERIFY(!config.buildConfigFile(memory));
        QCOMPARE(memory.data(), text);
        QVERIFY(config.buildConfigXmlFile(outPath())); // that form has room for them
    }

    void aQuestionMarkIsAQuestionMark()
    {
        QCOMPARE(asText("<p k='?\xc3\xbf'/>", u"xml"_s), "p: \n{\n    k = \"?\xff\";\n};\n\n");
    }

    void writesIntoMemory()
    {
        write("top=1;p:{k=\xe8;};");
        libconfig::Config config(inPath(), u"cfg"_s);
        QBuffer text;
        QVERIFY(text.open(QIODevice::WriteOnly));
        QVERIFY(config.buildConfigFile(text));
        QCOMPARE(text.data(), "top = \"1\";\np: \n{\n    k = \"\xe8\";\n};\n\n");
        QBuffer xml;
        QVERIFY(xml.open(QIODevice::WriteOnly));
        QVERIFY(config.buildConfigXmlFile(xml));
        QCOMPARE(xml.data(), "top = \"1\";\n\n<p\n    k = \"\xc3\xa8\">\n</p>\n");
    }

    void emptyBlocksAreWrittenButNotReadAgain()
    {
        QCOMPARE(asText("<p><a/></p>", u"xml"_s), "p: \n{\n    a: \n    {\n    };\n\n};\n\n");
        QCOMPARE(asText(asText("<p k='v'><a/></p>", u"xml"_s)), "p: \n{\n    k = \"v\";\n};\n\n");
    }

    void aQuoteIsWrittenAndLostInReading()
    {
        QCOMPARE(asText("<p k='a&quot;b'/>", u"xml"_s), "p: \n{\n    k = \"a\"b\";\n};\n\n");
        QCOMPARE(libconfig::Config(outPath(), u"cfg"_s).lookup(u"p.k"_s), u"ab"_s);
    }

    void aSemicolonEndsTheValueInReading()
    {
        QCOMPARE(asText("<p k='a;b' m='1'/>", u"xml"_s), "p: \n{\n    k = \"a;b\";\n    m = \"1\";\n};\n\n");
        const libconfig::Config config(outPath(), u"cfg"_s);
        QCOMPARE(config.lookup(u"p.k"_s), u"a"_s);
        QCOMPARE(config.lookup(u"p.m"_s), QString()); // the rest of the value became part of its name
    }

    void anEmptyNameMeansTheFileThatWasRead()
    {
        write("p:{k=v;};");
        QVERIFY(libconfig::Config(inPath(), u"cfg"_s).buildConfigFile(QString()));
        QCOMPARE(folder.read(u"in.conf"_s), "p: \n{\n    k = \"v\";\n};\n\n");
        QVERIFY(libconfig::Config(inPath(), u"cfg"_s).buildConfigXmlFile(QString()));
        QCOMPARE(folder.read(u"in.conf"_s), "\n<p\n    k = \"v\">\n</p>\n");
    }

    void aLongerOldFileIsCutOff()
    {
        folder.write(u"out.conf"_s, QByteArray(10000, 'x'));
        QCOMPARE(asText("p:{k=v;};"), "p: \n{\n    k = \"v\";\n};\n\n");
    }

    void aFileThatCannotBeOpenedIsNotWritten()
    {
        write("p:{k=v;};");
        libconfig::Config config(inPath(), u"cfg"_s);
        QVERIFY(!config.buildConfigFile(folder.path()));
        QVERIFY(!config.buildConfigXmlFile(folder.path(u"absent/out.conf"_s)));
        QVERIFY(!QFile::exists(folder.path(u"absent"_s)));
    }

    void aFullDiskIsTold()
    {
        write("p:{k=v;};");
        libconfig::Config config(inPath(), u"cfg"_s);
        QVERIFY(!config.buildConfigFile(u"/dev/full"_s));
        QVERIFY(!config.buildConfigXmlFile(u"/dev/full"_s));
    }

    void aBlockAloneIsWrittenAtTheMargin()
    {
        write("p:{a:{k=v;};};");
        libconfig::Config config(inPath(), u"cfg"_s);
        QString text;
        QTextStream stream(&text);
        // Twice, and with the other writer between: the indentations that all calls share came back to
        // nothing.
        const QDomNode inner = config.root().firstChild().firstChild();
        config.buildConfigFile(inner, stream);
        config.buildConfigXmlFile(inner, stream);
        config.buildConfigFile(inner, stream);
        QCOMPARE(
            text,
            u"a: \n{\n    k = \"v\";\n};\n\n\n<a\n    k = \"v\">\n</a>\na: \n{\n    k = \"v\";\n};\n\n"_s);
    }

    void printsTheTree()
    {
        write("top=1;p:{z=1;a=caff\xe8;q:{k=v;};};r:{m=w;};");
        CapturedOutput output;
        libconfig::Config(inPath(), u"cfg"_s).printConfigTree();
        QCOMPARE(output.bytes(), "Tree \n" + inPath().toUtf8() +
                                     "\ntop = 1\np\nz = 1\na = caff\xc3\xa8\nq\nk = v\nr\nm = w\n");
    }

    void printsAnEmptyTree()
    {
        CapturedOutput output;
        libconfig::Config().printConfigTree();
        QCOMPARE(output.bytes(), "Tree \n");
    }

    void changesKeepTheOrder()
    {
        write("p:{z=1;y=2;x=3;};");
        libconfig::Config config(inPath(), u"cfg"_s);
        const QDomElement block = config.root().firstChildElement();
        {
            libconfig::OrderedAttributes attributes(block);
            attributes.set(u"y"_s, u"changed"_s);
            attributes.remove(u"z"_s);
            attributes.set(u"b"_s, u"4"_s);
            attributes.set(u"a"_s, u"5"_s);
            attributes.set(u"z"_s, u"6"_s);
        }
        const QDomElement added = config.appendBlock(block, u"new block"_s);
        libconfig::OrderedAttributes(added).set(u"k"_s, u"v"_s);
        QVERIFY(config.buildConfigFile(outPath()));
        QCOMPARE(
            written(),
            "p: \n{\n    y = \"changed\";\n    x = \"3\";\n    b = \"4\";\n    a = \"5\";\n    z = \"6\";\n"
            "    new block: \n    {\n        k = \"v\";\n    };\n\n};\n\n");
    }

    void anAttributeSetPastTheOrderStandsBehind()
    {
        write("p:{z=1;};");
        libconfig::Config config(inPath(), u"cfg"_s);
        QDomElement block = config.root().firstChildElement();
        block.setAttribute(u"b"_s, u"2"_s);
        block.setAttribute(u"a"_s, u"3"_s);
        const QStringList expected{u"z"_s, u"a"_s, u"b"_s};
        QCOMPARE(libconfig::OrderedAttributes(block).names(), expected);
    }

    void aTreeMadeFromNothing()
    {
        libconfig::Config config;
        const QDomElement block = config.appendBlock(config.root(), u"p"_s);
        libconfig::OrderedAttributes(block).set(u"k"_s, u"v"_s);
        QCOMPARE(config.lookup(u"p.k"_s), u"v"_s);
    }

    /// The toolkit complains on standard error when it is to open a file without a name.
    void withoutANameNothingIsWrittenAndNothingIsSaid()
    {
        QTest::failOnWarning(QRegularExpression(u".*"_s));
        libconfig::Config none;
        QVERIFY(!none.buildConfigFile(QString()));
        QVERIFY(!none.buildConfigXmlFile(QString()));
        libconfig::Config nameless(QString(), u"xml"_s);
        QVERIFY(!nameless.buildConfigFile(QString()));
        QVERIFY(!nameless.buildConfigXmlFile(QString()));
    }

    void aHundredThousandPairsKeepTheirOrderInReasonableTime()
    {
        QByteArray content = "p: \n{\n";
        for (int i = 0; i < 100000; ++i)
            content += "    key" + QByteArray::number(i) + " = \"v\";\n";
        content += "};\n\n";
        QCOMPARE(asText(content), content);
    }
};

QTEST_GUILESS_MAIN(LibconfigWriteTest)
#include "libconfig_write_test.moc"
