#include "configfile.h"
#include "exitcode.h"
#include "keyedit.h"
#include "listing.h"
#include "program.h"
#include "scratchfolder.h"

#include <QFile>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// What people read is held against the tables of the code.
class ConfigDocumentsTest : public QObject
{
    Q_OBJECT

private:
    static QString sourcePath(const QString &name)
    {
        return QStringLiteral(PALVESTRIN_SOURCE_DIR) + u'/' + name;
    }
    static QString textOf(const QString &name)
    {
        QFile file(sourcePath(name));
        if (!file.open(QIODevice::ReadOnly))
            qFatal("cannot read %s", qPrintable(file.fileName()));
        return QString::fromUtf8(file.readAll());
    }
    static void rewrite(const QString &name, const QString &text)
    {
        QFile file(sourcePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
            qFatal("cannot write %s", qPrintable(file.fileName()));
    }

private Q_SLOTS:
    void theKeysInTheDocumentAreThoseOfTheCode()
    {
        const QString name = u"docs/configuration.md"_s;
        const QString document = textOf(name);
        const QString begin = u"<!-- keys: begin -->\n"_s;
        const qsizetype from = document.indexOf(begin) + begin.size();
        const qsizetype to = document.indexOf(u"<!-- keys: end -->"_s);
        QVERIFY(document.contains(begin) && to >= from);
        if (qEnvironmentVariableIsSet("PALVESTRIN_UPDATE"))
            return rewrite(name, document.first(from) + keysAsMarkdown() + document.sliced(to));
        const QStringList written = document.sliced(from, to - from).split(u'\n');
        const QStringList expected = keysAsMarkdown().split(u'\n');
        for (qsizetype i = 0; i < std::max(written.size(), expected.size()); ++i)
            QCOMPARE(written.value(i), expected.value(i)); // PALVESTRIN_UPDATE=1 writes the tables anew
    }

    void tablesAsPeopleReadThem()
    {
        const QString tables = keysAsMarkdown();
        QVERIFY(
            tables.startsWith(u"| Key | Meaning | When missing | Read by |\n|---|---|---|---|\n"
                              "| `palvestrin.language.basedir` | directory of the translation files | \"\" | "
                              "start-up |\n"_s));
        QVERIFY(
            tables.contains(u"\n| `reportdoc` | report | `printReport`, `printStatementOfAccount` |\n"_s));
        QVERIFY(tables.contains(
            u"\n| `printTelephone` | print the customer's telephone, with printCustomer | off | "
            "`printPartialOrder`, `printFullOrder`, `printFullOrderReceipt`, "
            "`printFullOrderInvoice`, `printFullOrderDelivery`, `printAbstractOrderInvoice` |\n"_s));
        QVERIFY(tables.contains(u"\n| `paperRows` | rows of a page; no effect | 0 | no print method |\n"_s));
    }

    void theExampleOfTheGrammarIsReadAndWrittenAsItStands()
    {
        const QString document = textOf(u"docs/configuration.md"_s);
        QByteArray example;
        const qsizetype from = document.indexOf(u"    palvestrin: \n"_s);
        for (const QString &line :
             document.sliced(from, document.indexOf(u"A file is a list"_s) - from).split(u'\n'))
            example += line.mid(4).toLatin1() + '\n';
        example.chop(1);
        const ScratchFolder folder;
        ConfigFile file(folder.write(u"example.conf"_s, example));
        QCOMPARE(file.config().lookup(u"palvestrin.logger.level"_s), u"INFO"_s);
        QCOMPARE(file.written(form::text), example);
    }

    void theExampleConfigurationHoldsNothingThatSetRefuses()
    {
        const ScratchFolder folder;
        const QString path = folder.write(
            u"example.conf"_s, textOf(u"examples/home/.palvestrin/conf/palvestrin.conf"_s).toLatin1());
        ConfigFile example(path);
        const auto pairs = storedPairs(example.config());
        QVERIFY(pairs.size() > 100);
        for (const StoredPair &pair : pairs) {
            const ProgramRun run =
                runProgram(QStringLiteral(PALVESTRIN_PROGRAM),
                           {u"config"_s, u"set"_s, u"--file"_s, path, pair.key, pair.value},
                           bareEnvironment(folder.path()));
            QCOMPARE(run.standardError, QByteArray());
            QCOMPARE(run.exitStatus, 0);
        }
    }

    void theManualListsEveryExitCode()
    {
        QString expected = u".SH EXIT STATUS\n"_s;
        for (const ExitCodeMeaning &row : exitCodeMeanings)
            expected += u".TP\n.B %1\n%2\n"_s.arg(int(row.code)).arg(row.meaning);
        QVERIFY2(textOf(u"man/palvestrin.1"_s).contains(expected + u".SH"_s), qPrintable(expected));
    }

    void exitCodesAreNumberedInOrder()
    {
        for (size_t i = 0; i < exitCodeMeanings.size(); ++i)
            QCOMPARE(size_t(exitCodeMeanings[i].code), i);
    }
};

QTEST_GUILESS_MAIN(ConfigDocumentsTest)
#include "configdocuments_test.moc"
