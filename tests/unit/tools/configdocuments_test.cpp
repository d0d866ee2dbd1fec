#include "configfile.h"
#include "exitcode.h"
#include "keyedit.h"
#include "listing.h"
#include "program.h"
#include "scratchfolder.h"

#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
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

    /// What bash offers for the command line `words`, whose last word is being typed.
    static QStringList completions(const QStringList &words)
    {
        const QString script =
            u"source \"$1\"; shift; COMP_WORDS=(\"$@\"); COMP_CWORD=$(($# - 1)); _palvestrin; "
            "printf '%s\\n' \"${COMPREPLY[@]}\""_s;
        QStringList arguments{u"--norc"_s, u"-c"_s, script, u"bash"_s};
        arguments << sourcePath(u"completions/palvestrin"_s) << QStringLiteral(PALVESTRIN_PROGRAM) << words;
        QProcess bash;
        bash.start(u"bash"_s, arguments);
        if (!bash.waitForFinished())
            return {u"bash does not finish"_s};
        return QString::fromUtf8(bash.readAllStandardOutput() + bash.readAllStandardError())
            .split(u'\n', Qt::SkipEmptyParts);
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

    void completes_data()
    {
        QTest::addColumn<QString>("words");
        QTest::addColumn<QString>("offered");
        const auto row = [](const QString &words, const QString &offered) {
            QTest::newRow(qPrintable(words)) << words << offered;
        };
        row(u"co"_s, u"config"_s);
        row(u"config s"_s, u"set show"_s);
        row(u"config get palvestrin.logger.f"_s, u"palvestrin.logger.filename"_s);
        row(u"config set --force palvestrin.db."_s,
            u"palvestrin.db.dbname palvestrin.db.username palvestrin.db.password palvestrin.db.hostname"_s);
        row(u"config list --file x palvestrin.bin"_s, u"palvestrin.bin.path"_s);
        row(u"config set palvestrin.logger.level palvestrin.bin"_s, u""_s); // that is the value
        row(u"config set --u"_s, u"--unchecked"_s);
        row(u"config unset --f"_s, u"--file --force"_s);
        row(u"config convert --to "_s, u"xml cfg"_s);
        row(u"config get nonsense"_s, u""_s);
        row(u"other "_s, u""_s);
    }
    void completes()
    {
        QFETCH(QString, words);
        QFETCH(QString, offered);
        QCOMPARE(completions(words.split(u' ')).join(u' '), offered);
    }
};

QTEST_GUILESS_MAIN(ConfigDocumentsTest)
#include "configdocuments_test.moc"
