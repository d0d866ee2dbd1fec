// How palvestrin takes its words: what is an option and what is not, what is missing, and where a beginner is
// led.

#include "program.h"
#include "scratchfolder.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class UsageTest : public QObject
{
    Q_OBJECT

private:
    const ScratchFolder home;

    ProgramRun run(const QStringList &words) const
    {
        return runProgram(QStringLiteral(PALVESTRIN_PROGRAM), words, bareEnvironment(home.path()));
    }

private Q_SLOTS:
    /// What is wrong with a command line, in one line that says what to do.
    void errors_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<QByteArray>("line");
        const auto row = [](const QString &words, const QByteArray &line) {
            QTest::newRow(qPrintable(words)) << words.split(u' ') << line;
        };
        const QByteArray setUsage =
            "usage: palvestrin config set [--file FILE] [--force] [--unchecked] KEY VALUE";
        const QByteArray getUsage = "usage: palvestrin config get [--file FILE] KEY";
        const QByteArray convertUsage =
            "usage: palvestrin config convert --to xml|cfg [--output FILE] [--force] FILE";
        row(u"config set"_s, "the key is missing; " + setUsage);
        row(u"config set k.x"_s, "the value is missing; " + setUsage);
        row(u"config set k.x 1 2"_s, "one argument too many: \"2\"; " + setUsage);
        row(u"config set k.x 1 2 3"_s, "2 arguments too many: \"2\" \"3\"; " + setUsage);
        row(u"config set k.x 1 --fore"_s, "no option \"--fore\"; did you mean \"--force\"? " + setUsage);
        row(u"config set --force=1 k.x 1"_s, "--force takes no value; " + setUsage);
        row(u"config get"_s, "the key is missing; " + getUsage);
        row(u"config get -- "_s, "no program reads \"\"; \"palvestrin config list\" lists the known ones");
        row(u"config get -x"_s, "no option \"-x\"; " + getUsage);
        row(u"config get k.x --file"_s, "the file is missing behind --file; " + getUsage);
        row(u"config get --file  k.x"_s, "--file is empty; give the name of a file");
        row(u"config list --file= "_s, "--file is empty; give the name of a file");
        row(u"config unset --file  k.x"_s, "--file is empty; give the name of a file");
        row(u"config set --file  k.x 1 --unchecked"_s, "--file is empty; give the name of a file");
        row(u"config show --file "_s, "--file is empty; give the name of a file");
        row(u"config edit --file "_s, "--file is empty; give the name of a file");
        row(u"config show it"_s,
            "one argument too many: \"it\"; usage: palvestrin config show [--file FILE] [--show-secrets]");
        row(u"config convert --to xml"_s, "the file is missing; " + convertUsage);
        row(u"config convert --to xml "_s, "the name of the file is empty; give one");
        row(u"config convert x"_s, "--to xml|cfg is missing; " + convertUsage);
        row(u"config convert --to ini x"_s, "no \"ini\" for --to; give xml or cfg; " + convertUsage);
        row(u"config put"_s, "no command \"put\"; \"palvestrin config help\" lists them");
        row(u"config lst"_s, "no command \"lst\"; did you mean \"palvestrin config list\"?");
        row(u"config un"_s, "no command \"un\"; did you mean \"palvestrin config unset\"?");
        row(u"conf"_s, "no command \"conf\"; did you mean \"palvestrin config\"?");
        row(u"confgi get k.x"_s, "no command \"confgi\"; did you mean \"palvestrin config\"?");
        row(u"set k.x 1"_s, "no command \"set\"; did you mean \"palvestrin config set\"?");
        row(u"help conf"_s, "no command \"conf\"; did you mean \"palvestrin config\"?");
        row(u"config help lst"_s, "no command \"lst\"; did you mean \"palvestrin config list\"?");
        row(u"nonsense"_s, "no command \"nonsense\"; \"palvestrin help\" lists them");
        row(u""_s, "no command \"\"; \"palvestrin help\" lists them");
    }
    void errors()
    {
        QFETCH(QStringList, words);
        QFETCH(QByteArray, line);
        const ProgramRun result = run(words);
        QCOMPARE(result.standardError, "palvestrin: error: " + line + '\n');
        QCOMPARE(result.exitStatus, line.startsWith("no program reads") ? 3 : 2);
        QCOMPARE(result.standardOutput, QByteArray());
        QVERIFY(home.names().isEmpty());
    }

    /// With nothing to do, the error tells what could be done.
    void withoutACommand_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<QStringList>("help");
        QTest::newRow("palvestrin") << QStringList() << QStringList{u"help"_s};
        QTest::newRow("palvestrin config") << QStringList{u"config"_s} << QStringList{u"config"_s, u"help"_s};
    }
    void withoutACommand()
    {
        QFETCH(QStringList, words);
        QFETCH(QStringList, help);
        const ProgramRun result = run(words);
        QCOMPARE(result.exitStatus, 2);
        QCOMPARE(result.standardOutput, QByteArray());
        QCOMPARE(result.standardError,
                 "palvestrin: error: the command is missing\n\n" + run(help).standardOutput);
    }

    void help_data()
    {
        QTest::addColumn<QString>("words");
        QTest::addColumn<QByteArray>("firstLine");
        const auto row = [](const QString &words, const QByteArray &firstLine) {
            QTest::newRow(qPrintable(words)) << words << firstLine;
        };
        const QByteArray all = "Usage: palvestrin COMMAND [ARGUMENTS]";
        row(u"help"_s, all);
        row(u"--help"_s, all);
        row(u"-h"_s, all);
        const QByteArray config = "Usage: palvestrin config COMMAND [ARGUMENTS]";
        row(u"help config"_s, config);
        row(u"config help"_s, config);
        row(u"config --help"_s, config);
        row(u"config -h"_s, config);
        const QByteArray get = "Usage: palvestrin config get [--file FILE] KEY";
        row(u"help config get"_s, get);
        row(u"config help get"_s, get);
        row(u"config get --help"_s, get);
        row(u"config get -h"_s, get);
        row(u"config get a b c --nonsense --help"_s, get);
    }
    void help()
    {
        QFETCH(QString, words);
        const ProgramRun result = run(words.split(u' '));
        QTEST(result.standardOutput.split('\n').first(), "firstLine");
        QCOMPARE(result.standardError, QByteArray());
        QCOMPARE(result.exitStatus, 0);
    }

    void theListOfCommands()
    {
        QCOMPARE(run({u"config"_s, u"help"_s}).standardOutput,
                 R"(Usage: palvestrin config COMMAND [ARGUMENTS]

Commands:
  list [NAME]                Every setting: value, meaning, who reads it.
  get KEY                    The value of one setting.
  set KEY VALUE              Change one setting.
  unset KEY                  Remove one setting.
  show                       The file as the programs read it.
  convert --to xml|cfg FILE  A configuration in the other form of file.
  check                      What is wrong with the file, and where.
  edit                       Change settings in a window.
  init                       Begin with settings for a kind of house and its paper.
  help [COMMAND]             Tell about a command.

"palvestrin config help COMMAND" tells more; "man palvestrin-config" tells all.
)");
    }

    void theHelpOfACommand()
    {
        QCOMPARE(run({u"config"_s, u"set"_s, u"--help"_s}).standardOutput,
                 R"(Usage: palvestrin config set [--file FILE] [--force] [--unchecked] KEY VALUE

Change one setting.

Options:
  --file FILE                Use this configuration instead of the user's.
  --force                    Write even if something of the file gets lost.
  --unchecked                Accept keys and values that no program knows.
  -h, --help                 Tell about the command.
)");
    }

    /// The word in the place of the value is the value, whatever it looks like.
    void values_data()
    {
        QTest::addColumn<QStringList>("words"); // FILE stands for the file
        QTest::addColumn<QByteArray>("value");
        const QString key = u"palvestrin.db.password"_s;
        const auto row = [](const QStringList &words, const QByteArray &value) {
            QTest::newRow(qPrintable(words.join(u' '))) << words << value;
        };
        row({u"--file"_s, u"FILE"_s, key, u"-40"_s}, "-40");
        row({u"--file"_s, u"FILE"_s, key, u"-x"_s}, "-x");
        row({u"--file"_s, u"FILE"_s, key, u"--secret"_s}, "--secret");
        row({u"--file"_s, u"FILE"_s, key, u"--force"_s}, "--force");
        row({u"--file"_s, u"FILE"_s, key, u"--file"_s}, "--file");
        row({u"--file"_s, u"FILE"_s, key, u"--help"_s}, "--help");
        row({u"--file"_s, u"FILE"_s, key, u"-h"_s}, "-h");
        row({u"--file"_s, u"FILE"_s, key, u"-"_s}, "-");
        row({u"--file"_s, u"FILE"_s, key, u"--"_s}, "--");
        row({u"--file=FILE"_s, key, u"-x=y"_s}, "-x=y");
        row({key, u"-x"_s, u"--file"_s, u"FILE"_s}, "-x");
        row({key, u"x"_s, u"--force"_s, u"--file"_s, u"FILE"_s}, "x");
        row({u"--file"_s, u"FILE"_s, u"--"_s, key, u"-x"_s}, "-x");
        row({u"--file"_s, u"FILE"_s, u"--"_s, key, u"--"_s}, "--");
        row({u"--file"_s, u"FILE"_s, key, u"--"_s, u"-x"_s}, "-x");
        row({u"--file"_s, u"FILE"_s, key, u"--"_s, u"--force"_s}, "--force");
        row({u"--file"_s, u"elsewhere"_s, u"--file"_s, u"FILE"_s, key, u"last"_s}, "last");
    }
    void values()
    {
        QFETCH(QStringList, words);
        QFETCH(QByteArray, value);
        const ScratchFolder folder;
        words.replaceInStrings(u"FILE"_s, folder.path(u"c.conf"_s));
        const ProgramRun result = run(QStringList{u"config"_s, u"set"_s} + words);
        QCOMPARE(result.standardError, QByteArray());
        QCOMPARE(result.standardOutput, QByteArray());
        QCOMPARE(result.failure, QString());
        QCOMPARE(folder.read(u"c.conf"_s),
                 "palvestrin: \n{\n    db: \n    {\n        password = \"" + value + "\";\n    };\n\n};\n\n");
    }

    /// The command that needs a screen tells which package has its window.
    void theWindowIsNotInstalled()
    {
        const ScratchFolder folder;
        const QString alone = folder.path(u"palvestrin"_s);
        QVERIFY(QFile::copy(QStringLiteral(PALVESTRIN_PROGRAM), alone));
        const QStringList environment = bareEnvironment(home.path()) + QStringList{u"PATH=/nonexistent"_s};
        const ProgramRun result = runProgram(alone, {u"config"_s, u"edit"_s}, environment);
        QCOMPARE(result.exitStatus, 8);
        QCOMPARE(result.standardError,
                 "palvestrin: error: the program palvestrin-settings is not installed; install "
                 "the package palvestrin-desktop\n");
    }

    void aNegativeWidthIsRefusedAsAValue()
    {
        const ProgramRun result =
            run({u"config"_s, u"set"_s, u"palvestrin.receiptdoc.paperWidth"_s, u"-40"_s});
        QCOMPARE(result.exitStatus, 3);
        QCOMPARE(result.standardError,
                 "palvestrin: error: \"-40\" is no value for palvestrin.receiptdoc.paperWidth; give a whole "
                 "number from 0 to 999\n");
    }
};

QTEST_GUILESS_MAIN(UsageTest)
#include "usage_test.moc"
