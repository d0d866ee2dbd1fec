// What the Tab key does in real shells, each on a terminal of its own.

#include "program.h"
#include "scratchfolder.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class CompletionTest : public QObject
{
    Q_OBJECT

private:
    const ScratchFolder folder;

    /// The command line after everything that `shell` offers was put in.
    QString completed(const QString &shell, const QString &line) const
    {
        const QString binFolder = QStringLiteral(PALVESTRIN_PROGRAM).section(u'/', 0, -2);
        const ProgramRun run =
            runProgram(u"zsh"_s,
                       {u"-f"_s, QStringLiteral(PALVESTRIN_SOURCE_DIR "/tests/unit/tools/tab.zsh"), shell,
                        QStringLiteral(PALVESTRIN_SOURCE_DIR "/completions"), line},
                       bareEnvironment(folder.path()) +
                           QStringList{u"PATH="_s + binFolder + u':' + qEnvironmentVariable("PATH")},
                       folder.path());
        return run.failure.isEmpty() ? QString::fromUtf8(run.standardOutput).trimmed()
                                     : run.failure + QString::fromUtf8(run.standardError);
    }

private Q_SLOTS:
    void initTestCase()
    {
        folder.write(u"my.conf"_s, "");
        folder.write(u"my.xml"_s, "");
    }

    void completes_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("expected");
        const auto row = [](const QString &line, const QString &expected) {
            QTest::newRow(qPrintable(line)) << "palvestrin "_L1 + line << "palvestrin "_L1 + expected;
        };
        row(u"co"_s, u"config"_s);
        row(u"config s"_s, u"config set show"_s);
        row(u"config h"_s, u"config help"_s);
        row(u"help co"_s, u"help config"_s);
        row(u"help config un"_s, u"help config unset"_s);
        row(u"config help un"_s, u"config help unset"_s);

        // Keys come part by part, and "palvestrin." may be left out.
        row(u"config get pal"_s, u"config get palvestrin."_s);
        row(u"config get palvestrin.l"_s, u"config get palvestrin.language. palvestrin.logger."_s);
        row(u"config get palvestrin.logger.f"_s, u"config get palvestrin.logger.filename"_s);
        row(u"config get receipt"_s, u"config get palvestrin.receiptdoc."_s);
        row(u"config unset logger.l"_s, u"config unset palvestrin.logger.level"_s);
        row(u"config list --file x bin"_s, u"config list --file x palvestrin.bin."_s);
        row(u"config list paperW"_s, u"config list paperWidth"_s);
        row(u"config get nonsense"_s, u"config get nonsense"_s);

        // Values, where they are few.
        row(u"config set palvestrin.receiptdoc.printDate "_s,
            u"config set palvestrin.receiptdoc.printDate false true"_s);
        row(u"config set palvestrin.logger.level D"_s, u"config set palvestrin.logger.level DEBUG"_s);
        row(u"config set --force palvestrin.logger.type A"_s,
            u"config set --force palvestrin.logger.type APPEND"_s);
        row(u"config set palvestrin.db.dbname palvestrin.bin"_s,
            u"config set palvestrin.db.dbname palvestrin.bin"_s);
        row(u"config set palvestrin.db.password --f"_s, u"config set palvestrin.db.password --f"_s);

        row(u"config set --u"_s, u"config set --unchecked"_s);
        row(u"config unset --fo"_s, u"config unset --force"_s);
        row(u"config unset --force --fo"_s, u"config unset --force --fo"_s); // once is enough
        row(u"config show --s"_s, u"config show --show-secrets"_s);
        row(u"config convert --to "_s, u"config convert --to cfg xml"_s);
        row(u"config convert --to=x"_s, u"config convert --to=xml"_s);
        row(u"config convert --to xml my.c"_s, u"config convert --to xml my.conf"_s);
        row(u"config list --file my.x"_s, u"config list --file my.xml"_s);
        row(u"config list --file=my.x"_s, u"config list --file=my.xml"_s);
        row(u"other "_s, u"other"_s);
    }
    void completes()
    {
        QFETCH(QString, line);
        QFETCH(QString, expected);
        QCOMPARE(completed(u"bash"_s, line), expected);
        QCOMPARE(completed(u"zsh"_s, line), expected);
    }

    /// What the completions of the shells read.
    void offersForTheShells()
    {
        const auto offers = [this](const QStringList &words) {
            return runProgram(QStringLiteral(PALVESTRIN_PROGRAM), QStringList{u"--complete"_s} + words,
                              bareEnvironment(folder.path()))
                .standardOutput;
        };
        QCOMPARE(offers({u"config"_s, u"s"_s}),
                 "set\tChange one setting.\nshow\tThe file as the programs read it.\n");
        QCOMPARE(offers({u"config"_s, u"get"_s, u"logger.l"_s}),
                 "palvestrin.logger.level\tleast level written: DEBUG, INFO, WARNING, ERROR or FATAL, in any "
                 "case\n");
        QCOMPARE(offers({u"config"_s, u"get"_s, u"receipt"_s}), "palvestrin.receiptdoc.\n");
        QCOMPARE(offers({u"config"_s, u"get"_s, u"--file"_s, u""_s}), ":files\n");
        QCOMPARE(offers({u"nonsense"_s, u""_s}), "");
    }
};

QTEST_GUILESS_MAIN(CompletionTest)
#include "completion_test.moc"
