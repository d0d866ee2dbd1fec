#include "commandline.h"
#include "configfile.h"
#include "dispatch.h"
#include "exitcode.h"
#include "keyedit.h"
#include "keytables.h"
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

    /// A page as a terminal shows it, in one line with single blanks. Fails the test when the page has
    /// mistakes.
    static QString shownManual(const QString &page)
    {
        const ProgramRun man =
            runProgram(u"man"_s, {u"--warnings"_s, u"-l"_s, sourcePath(u"man/"_s + page)},
                       {u"PATH="_s + qEnvironmentVariable("PATH"), u"MANWIDTH=1000"_s, u"LC_ALL=C.UTF-8"_s});
        if (!man.failure.isEmpty() || !man.standardError.isEmpty())
            QTest::qFail((man.failure.toUtf8() + man.standardError).constData(), __FILE__, __LINE__);
        return QString::fromUtf8(man.standardOutput).simplified();
    }

private Q_SLOTS:
    void theKeysInTheDocumentsAreThoseOfTheCode_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("mark"); // %1 is "begin" or "end"
        QTest::addColumn<QString>("keys");
        QTest::newRow("document") << u"docs/configuration.md"_s << u"<!-- keys: %1 -->\n"_s
                                  << keysAsMarkdown();
        QTest::newRow("manual") << u"man/palvestrin.conf.5"_s << u".\\\" keys: %1\n"_s << keysAsManual();
    }
    void theKeysInTheDocumentsAreThoseOfTheCode()
    {
        QFETCH(QString, name);
        QFETCH(QString, mark);
        QFETCH(QString, keys);
        const QString document = textOf(name);
        const QString begin = mark.arg(u"begin"_s);
        const qsizetype from = document.indexOf(begin) + begin.size();
        const qsizetype to = document.indexOf(mark.arg(u"end"_s));
        QVERIFY(document.contains(begin) && to >= from);
        if (qEnvironmentVariableIsSet("PALVESTRIN_UPDATE"))
            return rewrite(name, document.first(from) + keys + document.sliced(to));
        const QStringList written = document.sliced(from, to - from).split(u'\n');
        const QStringList expected = keys.split(u'\n');
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
        QVERIFY(tables.contains(
            u"\n| `paperRows` | rows of a page; a receipt printer fills up the last one | 0 | receipt printer |\n"_s));
    }

    void settingsAsTheManualTellsThem()
    {
        const QString chapters = keysAsManual();
        QVERIFY(chapters.startsWith(
            u".SH SETTINGS OF THE APPLICATION\n"
            ".TP\n"
            ".BI palvestrin.language.basedir \" = TEXT\"\n"
            "directory of the translation files; when missing: \"\". Read by: start\\-up.\n"_s));
        QVERIFY(chapters.contains(
            u"\n.TP\n"
            ".BI palvestrin.logger.type \" = APPEND|OVERWRITE\"\n"
            "APPEND to the log file or OVERWRITE it, in any case; when missing: no log. Read by: "
            "logger.\n"_s));
        QVERIFY(
            chapters.contains(u"\n.TP\n"
                              ".B palvestrin.reportdoc\n"
                              "Report (printReport), Statement of account (printStatementOfAccount).\n"_s));
        QVERIFY(chapters.contains(
            u"\n.TP\n"
            ".BI paperRows \" = NUMBER\"\n"
            "rows of a page; a receipt printer fills up the last one; when missing: 0. Consulted by: receipt "
            "printer.\n"_s));
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

    /// The manual as a terminal shows it, with nothing to complain about.
    void everyPageOfTheManualIsInOrder_data()
    {
        QTest::addColumn<QString>("page");
        for (const QString &page : QDir(sourcePath(u"man"_s)).entryList({u"*.1"_s, u"*.5"_s, u"*.7"_s}))
            QTest::addRow("%s", qPrintable(page)) << page;
    }
    void everyPageOfTheManualIsInOrder()
    {
        QFETCH(QString, page);
        QVERIFY(shownManual(page).contains(u" SEE ALSO "_s));
    }

    /// Each command has a page: its usage, or that of the commands in it, and every option.
    void theManualHasEveryCommandAndOption_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QString>("program");
        QTest::addColumn<const Command *>("command");
        for (const Command *command : palvestrinCommand.commands) {
            const QString page = u"palvestrin-%1.1"_s.arg(command->name);
            const QString program = u"palvestrin "_s + command->name;
            if (command->commands.empty())
                QTest::addRow("%s", qPrintable(program)) << page << program << command;
            for (const Command *inside : command->commands) {
                const QString whole = program + u' ' + inside->name;
                QTest::addRow("%s", qPrintable(whole)) << page << whole << inside;
            }
        }
    }
    void theManualHasEveryCommandAndOption()
    {
        QFETCH(QString, page);
        QFETCH(QString, program);
        QFETCH(const Command *, command);
        const QString text = shownManual(page);
        const QString synopsis = text.section(u" SYNOPSIS "_s, 1, 1).section(u" DESCRIPTION "_s, 0, 0) + u' ';
        const QString usage = usageLine(*command, program);
        QVERIFY2(synopsis.contains(usage + u' '), qPrintable(usage));
        const QString options = text.section(u" OPTIONS "_s, 1, 1).section(u" EXIT STATUS "_s, 0, 0);
        for (const Option &option : command->options)
            QVERIFY2(options.contains("--"_L1 + option.name + u' '), option.name.data());
    }

    void theOverviewNamesEveryPage()
    {
        const QString overview = shownManual(u"palvestrin.1"_s);
        for (const Command *command : palvestrinCommand.commands)
            QVERIFY2(overview.contains(u"%1, see palvestrin-%1(1) %2"_s.arg(command->name, command->summary)),
                     command->name.data());
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
