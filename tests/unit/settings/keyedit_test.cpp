#include "configfile.h"
#include "keyedit.h"
#include "scratchfolder.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class KeyEditTest : public QObject
{
    Q_OBJECT

private:
    const ScratchFolder folder{};

    ConfigFile file(const QByteArray &content) const
    {
        return ConfigFile(folder.write(u"test.conf"_s, content));
    }

private Q_SLOTS:
    void sets_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QByteArray>("written");
        const auto row = [](const char *name, const QByteArray &content, const QString &key,
                            const QString &value, const QByteArray &written) {
            QTest::newRow(name) << content << key << value << written;
        };
        row("in an empty file", "", u"p.q.k"_s, u"v"_s,
            "p: \n{\n    q: \n    {\n        k = \"v\";\n    };\n\n};\n\n");
        row("a new key goes behind", "p:{z=1;a=2;};", u"p.b"_s, u"3"_s,
            "p: \n{\n    z = \"1\";\n    a = \"2\";\n    b = \"3\";\n};\n\n");
        row("an old key keeps its place", "p:{z=1;a=2;};", u"p.z"_s, u"3"_s,
            "p: \n{\n    z = \"3\";\n    a = \"2\";\n};\n\n");
        row("a new block goes behind", "p:{q:{k=1;};};", u"p.r.m"_s, u"2"_s,
            "p: \n{\n    q: \n    {\n        k = \"1\";\n    };\n\n    r: \n    {\n        m = \"2\";\n    "
            "};\n\n};\n\n");
        row("the sibling that is found", "p:{b:{k=;};b:{k=2;};b:{k=3;};};", u"p.b.k"_s, u"x"_s,
            "p: \n{\n    b: \n    {\n        k = \"\";\n    };\n\n    b: \n    {\n        k = \"x\";\n    "
            "};\n\n"
            "    b: \n    {\n        k = \"3\";\n    };\n\n};\n\n");
        row("empty in all siblings", "p:{b:{k=1;};b:{k=2;};};", u"p.b.k"_s, u""_s,
            "p: \n{\n    b: \n    {\n        k = \"\";\n    };\n\n    b: \n    {\n        k = \"\";\n    "
            "};\n\n};\n\n");
        row("an existing sibling, not a new block", "p:{a:{m=1;};a:{b:{n=2;};};};", u"p.a.b.k"_s, u"v"_s,
            "p: \n{\n    a: \n    {\n        m = \"1\";\n    };\n\n    a: \n    {\n        b: \n        {\n"
            "            n = \"2\";\n            k = \"v\";\n        };\n\n    };\n\n};\n\n");
    }
    void sets()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, key);
        QFETCH(QString, value);
        QFETCH(QByteArray, written);
        ConfigFile test = file(content);
        QVERIFY(setKey(test.config(), key, value));
        QCOMPARE(test.config().lookup(key), value);
        QCOMPARE(test.written(form::text), written);
    }

    void setsNothingBehindAnotherBlock()
    {
        ConfigFile test = file("other:{k=1;};p:{k=2;};");
        QVERIFY(!setKey(test.config(), u"p.k"_s, u"v"_s));
        QCOMPARE(test.written(form::text), "other: \n{\n    k = \"1\";\n};\n\n");
        QVERIFY(!setKey(test.config(), u"k"_s, u"v"_s)); // no block at all
    }

    void removesEverywhereAndLeavesNoEmptyBlocks()
    {
        ConfigFile test = file("p:{a:{b:{k=1;};};a:{b:{k=2;m=3;};};};");
        QVERIFY(removeKey(test.config(), u"p.a.b.k"_s));
        QCOMPARE(test.written(form::text), "p: \n{\n    a: \n    {\n        b: \n        {\n            m = "
                                           "\"3\";\n        };\n\n    };\n\n};\n\n");
        QVERIFY(!removeKey(test.config(), u"p.a.b.k"_s));
        QVERIFY(!removeKey(test.config(), u"k"_s));
        QVERIFY(!removeKey(test.config(), QString()));
        QVERIFY(removeKey(test.config(), u"p.a.b.m"_s));
        QCOMPARE(test.written(form::text), "");
    }

    void keysThatCannotBe()
    {
        QCOMPARE(keyObjection(u"palvestrin.db.dbname"_s), QString());
        QCOMPARE(keyObjection(u"palvestrin.my_block.key-2"_s), QString());
        for (const QString &key : {u""_s, u"palvestrin"_s, u"palvestrin."_s, u"palvestrin..x"_s, u".x"_s,
                                   u"a.b c"_s, u"a.b=c"_s, u"a.b\n"_s, u"a.2b"_s, u"a.\u00e8"_s})
            QVERIFY2(!keyObjection(key).isEmpty(), qPrintable(key));
    }

    void valuesThatCannotBe()
    {
        QCOMPARE(valueObjection(u" x=1:{2} caff\u00e8 "_s), QString());
        QCOMPARE(valueObjection(u"a;b"_s), u"a value cannot hold ';'; leave it out"_s);
        QCOMPARE(valueObjection(u"a\"b"_s), u"a value cannot hold '\"'; leave it out"_s);
        QCOMPARE(valueObjection(u"5 \u20ac"_s), u"a value cannot hold '\u20ac'; leave it out"_s);
        QCOMPARE(valueObjection(QString(2044, u'v')), QString());
        QCOMPARE(valueObjection(QString(2045, u'v')),
                 u"a value has room for 2044 bytes, this one has 2045; shorten it"_s);
    }

    void theLongestValueSurvives()
    {
        ConfigFile test = file("");
        setKey(test.config(), u"p.k"_s, QString(2044, u'v'));
        const ConfigFile again = file(test.written(form::text));
        QCOMPARE(again.config().lookup(u"p.k"_s), QString(2044, u'v'));
    }

    void pairsOfAFile()
    {
        ConfigFile test = file("top=1;p:{z=2;q:{k=3;};};r:{m=4;};");
        QString text;
        for (const StoredPair &pair : storedPairs(test.config()))
            text += pair.key + u'=' + pair.value + (pair.isFound ? u" found\n"_s : u" lost\n"_s);
        QCOMPARE(text, u"top=1 lost\np.z=2 found\np.q.k=3 found\nr.m=4 lost\n"_s);
    }

    void whatIsWrongWithAPair()
    {
        QCOMPARE(pairObjection(u"palvestrin.logger.level"_s, true), QString());
        QCOMPARE(pairObjection(u"palvestrin.logger.level"_s, false),
                 u"never found: only the first top-level block is searched"_s);
        QCOMPARE(pairObjection(u"palvestrin.logger.levl"_s, true),
                 u"no program reads this; did you mean palvestrin.logger.level?"_s);
        QCOMPARE(pairObjection(u"mine.and.only.mine"_s, true), u"no program reads this"_s);
    }
};

QTEST_GUILESS_MAIN(KeyEditTest)
#include "keyedit_test.moc"
