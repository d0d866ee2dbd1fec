// `palvestrin print` and `palvestrin printers` with a print server of the test's own: three commands and a
// ticket.

#include "markdown.h"
#include "printerprocess.h"
#include "printqueues.h"
#include "printserver.h"
#include "profiles.h"
#include "program.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <csignal>

using namespace Qt::Literals::StringLiterals;

class PrintCommandTest : public QObject
{
    Q_OBJECT

private:
    PrintServer server;
    PrinterProcess printer;
    const ScratchFolder home;
    const QString job = example(u"printFullOrder"_s); // it names the printer Cassa

    static QString example(const QString &name)
    {
        return QStringLiteral(EXAMPLES "/jobs/") + name + u".xml"_s;
    }
    QStringList environment() const
    {
        const QString programs = QFileInfo(QStringLiteral(PALVESTRIN_PROGRAM)).path();
        return server.environment() +
               QStringList{u"HOME="_s + home.path(), u"PATH="_s + programs + u":/usr/bin:/usr/sbin:/bin"_s};
    }
    ProgramRun run(const QStringList &words) const
    {
        return runProgram(QStringLiteral(PALVESTRIN_PROGRAM), words, environment());
    }
    ProgramRun runShell(const QString &commands) const
    {
        return runProgram(u"sh"_s, {u"-ec"_s, commands}, environment(), home.path());
    }
    /// The listings of the document about printing.
    static QStringList listings()
    {
        QStringList texts;
        for (const markdown::Block &block : markdown::blocksOf(markdown::document(u"docs/printing.md"_s))) {
            if (block.kind == "sh"_L1)
                texts += block.text;
        }
        return texts;
    }
    int rowsWith(const QString &text) const { return int(printer.roll().filter(text).size()); }

private Q_SLOTS:
    void initTestCase()
    {
        QDir(home.path()).mkpath(u".palvestrin/conf"_s);
        QVERIFY(QFile::copy(QStringLiteral(EXAMPLES "/home/.palvestrin/conf/palvestrin.conf"),
                            home.path(u".palvestrin/conf/palvestrin.conf"_s)));
        const ProgramRun added =
            run({u"printers"_s, u"add"_s, u"Cassa"_s, QString::fromUtf8(printer.uri("wait=2"))});
        QVERIFY2(added.failure.isEmpty(), added.standardError);
        for (const char *setting : {"DirtyCleanInterval 0", "MaxJobTime 0", "SyncOnClose Yes"})
            QVERIFY2(added.standardOutput.contains(setting), added.standardOutput);
    }

    void theListTellsModelAndState()
    {
        const ProgramRun list = run({u"printers"_s});
        QCOMPARE(list.standardOutput, QByteArray("Cassa: Palvestrin 80mm, 1.0; idle.\n"));
        QCOMPARE(run({u"printers"_s, u"list"_s}).standardOutput, list.standardOutput);
    }

    void theListTellsWhatThePrinterSays()
    {
        printer.habit("paper 9");
        server.awaitState(server.submit(u"Cassa"_s, ticket(1)), {JobInfo::Completed});
        QCOMPARE(run({u"printers"_s}).standardOutput,
                 QByteArray("Cassa: Palvestrin 80mm, 1.0; idle. The paper is nearly out.\n"));
        const QJsonObject told = QJsonDocument::fromJson(run({u"printers"_s, u"--json"_s}).standardOutput)
                                     .array()
                                     .first()
                                     .toObject();
        QCOMPARE(told.value(u"profile"_s).toString(), u"80mm"_s);
        QCOMPARE(told.value(u"reasons"_s).toArray(), QJsonArray{u"media-low-warning"_s});
        printer.habit("paper 100000");
        server.awaitState(server.submit(u"Cassa"_s, ticket(2)), {JobInfo::Completed});
        QCOMPARE(run({u"printers"_s}).standardOutput, QByteArray("Cassa: Palvestrin 80mm, 1.0; idle.\n"));
    }

    /// The commands of the document, with the address of this printer.
    void fromAnAddressToATicket()
    {
        const QStringList commands = listings().first().split(u'\n', Qt::SkipEmptyParts);
        QCOMPARE(commands.size(), qsizetype(3));
        QVERIFY(commands[0].startsWith("apt install ./palvestrin-print_"_L1));
        QFile::copy(job, home.path(u"job.xml"_s));
        const int before = rowsWith(u"PRECONTO"_s);
        const QString address = u"127.0.0.1:%1"_s.arg(printer.port());
        const ProgramRun outcome =
            runShell(QString(commands[1]).replace("192.0.2.7"_L1, address) + u'\n' + commands[2]);
        QVERIFY2(outcome.failure.isEmpty(), outcome.standardError);
        QVERIFY2(outcome.standardOutput.endsWith(" on Cassa: printed\n"), outcome.standardOutput);
        QCOMPARE(rowsWith(u"PRECONTO"_s), before + 1);
        server.addQueue(u"Cassa"_s, printer.uri("wait=2"));
    }

    /// The server takes it for printed, and nobody knows.
    void aKilledBackendIsNoTicket()
    {
        printer.habit("cover open");
        QProcess print;
        print.setEnvironment(environment());
        print.start(QStringLiteral(PALVESTRIN_PROGRAM), {u"print"_s, u"--wait"_s, u"30"_s, job});
        QTRY_VERIFY_WITH_TIMEOUT(server.reasons(u"Cassa"_s).contains("cover-open-error"), 15'000);
        for (const qint64 process : server.backends())
            ::kill(pid_t(process), SIGKILL);
        QVERIFY(print.waitForFinished(15'000));
        QCOMPARE(print.exitCode(), 15);
        const QByteArray said = print.readAllStandardOutput();
        QVERIFY2(
            said.endsWith(" on Cassa: unknown: the backend was killed; look for the ticket at the printer\n"),
            said);
        printer.habit("cover closed");
        const int before = rowsWith(u"PRECONTO"_s);
        server.awaitState(server.submit(u"Cassa"_s, ticket(3)), {JobInfo::Completed});
        // The next job saw to it: it is held, and not printed behind the back of who was told so.
        const QString number = QString::fromUtf8(said).section(u": job "_s, 1).section(u' ', 0, 0);
        QTRY_COMPARE_WITH_TIMEOUT(server.job(number.toInt()).state, int(JobInfo::Held), 10'000);
        QCOMPARE(rowsWith(u"PRECONTO"_s), before);
    }

    void theQueueIsTheOneThatTheJobNames()
    {
        const int before = rowsWith(u"PRECONTO"_s);
        const ProgramRun outcome = run({u"print"_s, job});
        QVERIFY2(outcome.failure.isEmpty(), outcome.standardError);
        QVERIFY2(outcome.standardOutput.endsWith(" on Cassa: printed\n"), outcome.standardOutput);
        QCOMPARE(rowsWith(u"PRECONTO"_s), before + 1);
    }

    /// The settings want two invoices; the line printer's are asked of the server, the receipt printer's are
    /// in the data.
    void copies_data()
    {
        QTest::addColumn<QString>("model");
        QTest::newRow("receipt printer") << u"80mm"_s;
        QTest::newRow("line printer") << u"line"_s;
    }
    void copies()
    {
        QFETCH(QString, model);
        const QString address = u"127.0.0.1:%1"_s.arg(printer.port());
        const ProgramRun added = run({u"printers"_s, u"add"_s, u"--model"_s, model, u"Sala 1"_s, address});
        QVERIFY2(added.failure.isEmpty(), added.standardError);
        const int invoices = rowsWith(u"FATTURA"_s);
        const int bills = rowsWith(u"PRECONTO"_s);
        run({u"print"_s, u"--queue"_s, u"Sala 1"_s, example(u"printFullOrderInvoice"_s), job});
        QTRY_COMPARE(rowsWith(u"FATTURA"_s), invoices + 2);
        QTRY_COMPARE(rowsWith(u"PRECONTO"_s), bills + 1);
    }

    /// The queue of another print server, by the commands of the document.
    void aQueueIsShared()
    {
        PrintServer till;
        const QString address = u"127.0.0.1:%1"_s.arg(server.port());
        const int before = rowsWith(u"PRECONTO"_s);
        const ProgramRun outcome =
            runProgram(u"sh"_s, {u"-ec"_s, QString(listings().at(2)).replace("192.0.2.10"_L1, address)},
                       environment() + QStringList{u"CUPS_SERVER="_s + till.socket()}, home.path());
        QVERIFY2(outcome.standardOutput.contains(" on Cassa: "), outcome.standardError);
        QCOMPARE(rowsWith(u"PRECONTO"_s), before + 1);
    }

    /// A class, by the commands of the document; one of its printers is switched off.
    void anotherPrinterStandsIn()
    {
        PrinterProcess broken;
        PrinterProcess sound;
        broken.habit("refuse on");
        server.addQueue(u"Cucina1"_s, broken.uri("wait=2"));
        server.addQueue(u"Cucina2"_s, sound.uri("wait=2"));
        for (int tickets = 1; tickets < 3; ++tickets) { // one of them goes to the broken one first
            const ProgramRun outcome = runShell(listings().at(3));
            QVERIFY2(outcome.standardOutput.endsWith(" on Cucina: printed\n"), outcome.standardOutput);
            QCOMPARE(int(sound.roll().filter(u"PRECONTO"_s).size()), tickets);
        }
    }

    /// What was rendered before is known by its first bytes, and printed as it is.
    void finishedOutputsHaveATypeOfTheirOwn_data()
    {
        QTest::addColumn<QString>("queue");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("type");
        QTest::newRow("receipt printer") << u"Cassa"_s << ticket(3) << u"out"_s << QByteArray("escpos");
        QTest::newRow("with a picture")
            << u"Cassa"_s << QByteArray(72, '\0') + ticket(3) << u"out"_s << QByteArray("escpos");
        QTest::newRow("line printer")
            << u"line"_s << QByteArray("\nj\n\"end 3\"@\nJ\n") << u"out"_s << QByteArray("stream");
        QTest::newRow("register") << u"line"_s << QByteArray("\"Pane\"1*100H1R\nend 3\n") << u"out.reg"_s
                                  << QByteArray("register");
    }
    void finishedOutputsHaveATypeOfTheirOwn()
    {
        QFETCH(QString, queue);
        QFETCH(QByteArray, bytes);
        QFETCH(QString, name);
        QFETCH(QByteArray, type);
        const QString address = u"127.0.0.1:%1"_s.arg(printer.port());
        run({u"printers"_s, u"add"_s, u"--model"_s, u"line"_s, u"line"_s, address});
        const int before = rowsWith(u"end 3"_s);
        server.run(u"lp"_s, {u"-d"_s, queue, home.write(name, bytes)});
        QTRY_COMPARE(rowsWith(u"end 3"_s), before + 1);
        QVERIFY2(server.errorLog().contains("File of type application/vnd.palvestrin." + type + " queued"),
                 type);
        server.run(u"lpadmin"_s, {u"-x"_s, u"line"_s});
    }

    void aJobWithErrorsIsRefused()
    {
        const QString bad = home.write(
            u"bad.xml"_s, "<job><method name=\"printFullOrder\"/><printers name=\"Cassa\"/>"
                          "<receipe number=\"x\" name=\"Pane\" price=\"1\" totalPrice=\"1\"/></job");
        const qsizetype before = printer.roll().size();
        const ProgramRun refused = run({u"print"_s, u"--check"_s, job, bad});
        QCOMPARE(refused.exitStatus, 12);
        QVERIFY2(refused.standardError.contains("bad.xml:1:"), refused.standardError);
        QCOMPARE(printer.roll().size(), before);
        QCOMPARE(run({u"print"_s, u"--check"_s, job}).exitStatus, 0);
    }

    void theOthersArePrintedAllTheSame()
    {
        const QStringList words{u"print"_s, u"--queue"_s,      u"Cassa"_s, u"--json"_s,
                                job,        u"/missing.xml"_s, job};
        const ProgramRun outcome = run(words);
        QCOMPARE(outcome.exitStatus, 16);
        QStringList ends;
        for (const QJsonValue &each : QJsonDocument::fromJson(outcome.standardOutput).array())
            ends += each.toObject().value(u"outcome"_s).toString();
        QCOMPARE(ends, (QStringList{u"printed"_s, u"failed"_s, u"printed"_s}));
        QVERIFY2(outcome.standardError.startsWith("/missing.xml: error: "), outcome.standardError);
    }

    void theServerDiesMeanwhile()
    {
        printer.habit("cover open");
        QProcess waiting;
        waiting.setEnvironment(environment());
        waiting.start(QStringLiteral(PALVESTRIN_PROGRAM), {u"print"_s, u"--wait"_s, u"40"_s, job});
        QTRY_VERIFY_WITH_TIMEOUT(server.reasons(u"Cassa"_s).contains("cover-open-error"), 15'000);
        server.kill();
        QTest::qSleep(500); // it asks, and nobody answers
        server.start();
        printer.habit("cover closed");
        QVERIFY(waiting.waitForFinished(40'000));
        QCOMPARE(waiting.exitCode(), 0);
        QVERIFY(waiting.readAllStandardOutput().endsWith(" on Cassa: printed\n"));
    }

    void aTerminalShowsWhatItWaitsFor()
    {
        printer.habit("cover open");
        const ProgramRun shown =
            runShell(u"script -qec 'palvestrin print --wait 3 %1' /dev/null </dev/null"_s.arg(job));
        printer.habit("cover closed");
        QVERIFY2(shown.standardOutput.contains("\r\033[K"), shown.standardOutput);
        QVERIFY2(shown.standardOutput.contains("The cover is open; close it."), shown.standardOutput);
        QCOMPARE(shown.exitStatus, 14);
        QTRY_COMPARE_WITH_TIMEOUT(
            run({u"printers"_s}).standardOutput.contains("Cassa: Palvestrin 80mm, 1.0; idle.\n"), true,
            20'000);
    }

    void aStoppedPrinterIsTold()
    {
        server.run(u"cupsdisable"_s, {u"Cassa"_s});
        const ProgramRun outcome = run({u"print"_s, u"--wait"_s, u"0"_s, job});
        QCOMPARE(outcome.exitStatus, 14);
        QVERIFY2(outcome.standardError.contains("printer Cassa is stopped; \"cupsenable Cassa\" starts it"),
                 outcome.standardError);
        server.run(u"cupsenable"_s, {u"Cassa"_s});
        QTRY_VERIFY_WITH_TIMEOUT(server.backends().isEmpty(), 10'000);
    }

    void whatBecomesOfAJob_data()
    {
        QTest::addColumn<QByteArray>("habit");
        QTest::addColumn<QByteArray>("cure");
        QTest::addColumn<QString>("outcome");
        QTest::addColumn<int>("exitStatus");
        QTest::newRow("printed") << QByteArray("speed 0") << QByteArray("speed 0") << u"printed"_s << 0;
        QTest::newRow("held") << QByteArray("reset 40") << QByteArray("reset -1") << u"held"_s << 15;
        QTest::newRow("waiting") << QByteArray("cover open") << QByteArray("cover closed") << u"waiting"_s
                                 << 14;
    }
    void whatBecomesOfAJob()
    {
        QFETCH(QByteArray, habit);
        QFETCH(QByteArray, cure);
        QFETCH(QString, outcome);
        QFETCH(int, exitStatus);
        printer.habit(habit);
        const QStringList words{u"--wait"_s, exitStatus == 14 ? u"2"_s : u"30"_s, job};
        const ProgramRun whole = run(QStringList{u"print"_s, u"--json"_s} + words);
        printer.habit(cure);
        const QJsonObject told = QJsonDocument::fromJson(whole.standardOutput).array().first().toObject();
        QCOMPARE(told.value(u"outcome"_s).toString(), outcome);
        QCOMPARE(whole.exitStatus, exitStatus);
        const int number = told.value(u"number"_s).toInt();
        server.awaitState(number, {JobInfo::Completed, JobInfo::Held});
    }

    void whatCannotBeConfirmed()
    {
        server.addQueue(u"plain"_s, printer.uri("status=never&wait=2"));
        const ProgramRun outcome =
            run({u"print"_s, u"--queue"_s, u"plain"_s, u"--device"_s, u"escpos"_s, job});
        QCOMPARE(outcome.exitStatus, 13);
        QVERIFY2(outcome.standardOutput.contains("Sent, but not confirmed"), outcome.standardOutput);
    }

    /// The server's own backend counts sheets, and knows nothing of paper.
    void whatAnotherBackendSays()
    {
        server.addQueue(u"socket"_s, "socket://127.0.0.1:" + QByteArray::number(printer.port()));
        const ProgramRun outcome =
            run({u"print"_s, u"--queue"_s, u"socket"_s, u"--device"_s, u"escpos"_s, job});
        QCOMPARE(outcome.exitStatus, 13);
        QVERIFY2(outcome.standardOutput.endsWith(": sent, but not confirmed\n"), outcome.standardOutput);
        server.run(u"lpadmin"_s, {u"-x"_s, u"socket"_s});
    }

    void errors_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<QByteArray>("message");
        QTest::newRow("no such printer") << QStringList{u"print"_s, u"--queue"_s, u"Bar"_s, job}
                                         << QByteArray("there is no printer \"Bar\"; there are Cassa");
        QTest::newRow("no model") << QStringList{u"print"_s, u"--queue"_s, u"plain"_s, job}
                                  << QByteArray("give --device and --profile");
        QTest::newRow("no printer named")
            << QStringList{u"print"_s, home.write(u"none.xml"_s, "<job><method name=\"printReport\"/></job>")}
            << QByteArray("none.xml: error: the job names no printer; name one with --queue\n");
        QTest::newRow("what was read is gone")
            << QStringList{u"print"_s, u"--check"_s, u"-"_s} << QByteArray("give a file\n");
        QTest::newRow("wait") << QStringList{u"print"_s, u"--wait"_s, u"soon"_s, job}
                              << QByteArray("--wait takes a number of seconds");
        QTest::newRow("model") << QStringList{u"printers"_s,  u"add"_s,     u"x"_s,
                                              u"192.0.2.1"_s, u"--model"_s, u"90mm"_s}
                               << QByteArray("there is no model \"90mm\"");
    }
    void errors()
    {
        QFETCH(QStringList, words);
        QFETCH(QByteArray, message);
        const ProgramRun outcome = run(words);
        QVERIFY(outcome.exitStatus > 0);
        QVERIFY2(outcome.standardError.contains(message), outcome.standardError);
    }

    /// A profile without a model could be rendered for, and not be added.
    void everyProfileHasAModel()
    {
        for (const Profile &profile : profiles)
            QVERIFY2(QFile::exists(QStringLiteral(PPD_FOLDER "/") + modelFile(profile.name)),
                     profile.name.data());
    }

    void everyModelIsInOrder()
    {
        const QDir folder(QStringLiteral(PPD_FOLDER));
        const QStringList names = folder.entryList({u"*.ppd"_s});
        QCOMPARE(names.size(), qsizetype(5));
        for (const QString &name : names) {
            const ProgramRun outcome =
                runProgram(u"cupstestppd"_s, {u"-q"_s, folder.filePath(name)}, server.environment());
            QVERIFY2(outcome.failure.isEmpty(), qPrintable(name));
        }
    }
};

QTEST_GUILESS_MAIN(PrintCommandTest)
#include "printcommand_test.moc"
