#include "commanderror.h"
#include "configfile.h"
#include "scratchfolder.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class ConfigFileTest : public QObject
{
    Q_OBJECT

private:
    const ScratchFolder folder{};

private Q_SLOTS:
    void isWrittenInEitherForm()
    {
        ConfigFile file(folder.write(u"c.conf"_s, "p:{k=\xe8;};"));
        QCOMPARE(file.written(form::text), "p: \n{\n    k = \"\xe8\";\n};\n\n");
        QCOMPARE(file.written(form::xml), "\n<p\n    k = \"\xc3\xa8\">\n</p>\n");
    }

    void theTreeIsThatOfTheFile()
    {
        const QString path = folder.write(u"c.conf"_s, "p:{k=v;};");
        ConfigFile file(path);
        QCOMPARE(file.type(), u"cfg"_s);
        QCOMPARE(file.config().lookup(u"p.k"_s), u"v"_s);
        QCOMPARE(file.config().root().tagName(), path);
    }

    void whatAFormCannotHold_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("as");
        QTest::addColumn<QString>("setting");
        const auto row = [](const char *name, const QByteArray &content, const QString &as,
                            const QString &setting) { QTest::newRow(name) << content << as << setting; };
        row("all of it", "<p k='\xc3\xbf?'/>", form::text, QString());
        row("a value beyond Latin-1", "<p><q a='1' k='5 \xe2\x82\xac'/></p>", form::text, u"p.q.k"_s);
        row("a key beyond Latin-1", "<p><q \xc4\x80='v'/></p>", form::text, u"p.q.\u0100"_s);
        row("a block beyond Latin-1", "<p><\xc4\x80 k='v'/></p>", form::text, u"p.\u0100"_s);
        row("the same in XML", "<p><\xc4\x80 k='5 \xe2\x82\xac'/></p>", form::xml, QString());
        row("a semicolon", "<p k='a;b'/>", form::text, u"p.k"_s);
    }
    void whatAFormCannotHold()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, as);
        QFETCH(QString, setting);
        ConfigFile file(folder.write(u"c.xml"_s, content));
        QCOMPARE(file.changedIn(as), setting);
        if (setting.isEmpty())
            return;
        try {
            file.written(as);
            QFAIL("written all the same");
        } catch (const CommandError &error) {
            QCOMPARE(error.code(), ExitCode::Refused);
        }
    }
};

QTEST_GUILESS_MAIN(ConfigFileTest)
#include "configfile_test.moc"
