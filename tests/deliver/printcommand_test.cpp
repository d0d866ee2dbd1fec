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
#include <QRegularExpression>
#include <QTest>

#include <csignal>

using namespace Qt::Literals::StringLiterals;

class PrintCommandTest : public QObject
{
    Q_OBJECT

private:
    PrintServer server;
    PrinterProcess printer;
    const ScratchFolder home{};
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
    /// With another server than the usual one.
    ProgramRun runAt(const QString &otherServer, const QStringList &words) const
    {
        return runProgram(QStringLiteral(PALVESTRIN_PROGRAM), words,
                          environment() + QStringList{u"CUPS_SERVER="_s + otherServer});
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

    /// What a person keeps of options for a queue, "Cassa/draft", is no printer.
    void optionsOfAPersonAreNoPrinter()
    {
        QDir(home.path()).mkpath(u".cups"_s);
        home.write(u".cups/lpoptions"_s, "Dest Cassa/draft copies=2\n");
        QCOMPARE(runShell(u"lpstat -e"_s).standardOutput, QByteArray("Cassa\nCassa/draft\n"));
        QCOMPARE(run({u"printers"_s}).standardOutput, QByteArray("Cassa: Palvestrin 80mm, 1.0; idle.\n"));
        QVERIFY(QFile::remove(home.path(u".cups/lpoptions"_s)));
    }

    void theListTellsHowToStartAPrinter()
    {
        server.run(u"cupsdisable"_s, {u"Cassa"_s});
        server.run(u"cupsreject"_s, {u"Cassa"_s});
        QCOMPARE(
            run({u"printers"_s}).standardOutput,
            QByteArray("Cassa: Palvestrin 80mm, 1.0; stopped. \"cupsenable Cassa\" starts it. It takes no "
                       "jobs; \"cupsaccept Cassa\" has it take them.\n"));
        server.run(u"cupsaccept"_s, {u"Cassa"_s});
        server.run(u"cupsenable"_s, {u"Cassa"_s});
        QCOMPARE(run({u"printers"_s}).standardOutput, QByteArray("Cassa: Palvestrin 80mm, 1.0; idle.\n"));
    }

    void noPrinters()
    {
        const PrintServer empty;
        const ProgramRun list = runAt(empty.socket(), {u"printers"_s});
        QCOMPARE(list.exitStatus, 0);
        QCOMPARE(list.standardOutput,
                 QByteArray("There are no printers; \"palvestrin printers add NAME ADDRESS\" adds one.\n"));
        QCOMPARE(runAt(empty.socket(), {u"printers"_s, u"--json"_s}).standardOutput, QByteArray("[\n]\n"));
    }

    /// That is something else than no printers.
    void noServer_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::newRow("list") << QStringList{u"printers"_s};
        QTest::newRow("list as JSON") << QStringList{u"printers"_s, u"--json"_s};
        QTest::newRow("print") << QStringList{u"print"_s, job};
        QTest::newRow("print on a printer")
            << QStringList{u"print"_s, u"--queue"_s, u"Cassa"_s, u"--json"_s, job};
    }
    void noServer()
    {
        QFETCH(QStringList, words);
        const QString socket = home.path(u"nobody"_s);
        const ProgramRun outcome = runAt(socket, words);
        QCOMPARE(outcome.exitStatus, 16);
        QCOMPARE(outcome.standardError,
                 "palvestrin: error: the print server does not answer: nothing takes the "
                 "connection at " +
                     socket.toUtf8() +
                     "; \"systemctl start cups\" starts it, \"systemctl status cups\" "
                     "tells why it ended\n");
        QCOMPARE(outcome.standardOutput, QByteArray());
    }

    void theServerOfAnotherMachineIsAway()
    {
        const ProgramRun outcome = runAt(u"till.invalid"_s, {u"printers"_s});
        QCOMPARE(outcome.exitStatus, 16);
        QCOMPARE(
            outcome.standardError,
            QByteArray("palvestrin: error: the print server does not answer: nothing takes the connection at "
                       "till.invalid; look after that machine, or name another one in CUPS_SERVER or "
                       "client.conf\n"));
    }

    void theListTellsWhatThePrinterSays()
    {
        printer.habit("paper 9");
        server.awaitState(server.submit(u"Cassa"_s, ticket(1)), {JobInfo::Completed});
        QCOMPARE(run({u"printers"_s}).standardOutput,
                 QByteArray("Cassa: Palvestrin 80mm, 1.0; idle. The paper is nearly out.\n"));
        QCOMPARE(run({u"printers"_s, u"--json"_s}).standardOutput,
                 "[\n    {\n        \"accepting\": true,\n        \"address\": \"" + printer.uri("wait=2") +
                     "\",\n        \"message\": \"\",\n        \"model\": "
                     "\"Palvestrin 80mm, 1.0\",\n        \"name\": \"Cassa\",\n        \"profile\": "
                     "\"80mm\",\n        \"reasons\": [\n            \"media-low-warning\"\n        ],\n"
                     "        \"state\": \"idle\",\n        \"troubles\": [\n            "
                     "\"The paper is nearly out.\"\n        ]\n    }\n]\n");
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

    /// The server takes it for printed, and nobody knows. What the backend said last is no news by then.
    void aKilledBackendIsNoTicket_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QByteArray>("said");
        QTest::newRow("for people")
            << QStringList()
            << QByteArray(" on Cassa: unknown: the backend was killed; look for the ticket at the printer\n");
        QTest::newRow("as JSON")
            << QStringList{u"--json"_s}
            << QByteArray(
                   "\"message\": \"unknown: the backend was killed; look for the ticket at the printer\"");
    }
    void aKilledBackendIsNoTicket()
    {
        QFETCH(QStringList, options);
        printer.habit("cover open");
        QProcess print;
        print.setEnvironment(environment());
        print.start(QStringLiteral(PALVESTRIN_PROGRAM),
                    QStringList{u"print"_s, u"--wait"_s, u"30"_s, job} + options);
        QTRY_VERIFY_WITH_TIMEOUT(server.reasons(u"Cassa"_s).contains("cover-open-error"), 15'000);
        for (const qint64 process : server.backends())
            ::kill(pid_t(process), SIGKILL);
        QVERIFY(print.waitForFinished(15'000));
        QCOMPARE(print.exitCode(), 15);
        const QByteArray outcome = print.readAllStandardOutput();
        QFETCH(QByteArray, said);
        QVERIFY2(outcome.contains(said), outcome);
        printer.habit("cover closed");
        const int before = rowsWith(u"PRECONTO"_s);
        server.awaitState(server.submit(u"Cassa"_s, ticket(3)), {JobInfo::Completed});
        // The next job saw to it: it is held, and not printed behind the back of who was told so.
        const QRegularExpression number(u"(?:: job |\"number\": )(\\d+)"_s);
        const int doubtful = number.match(QString::fromUtf8(outcome)).captured(1).toInt();
        QTRY_COMPARE_WITH_TIMEOUT(server.job(doubtful).state, int(JobInfo::Held), 10'000);
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

    /// Without a queue of the till's own; `ServerName` says the same as the variable.
    void anotherMachineIsAskedItself()
    {
        const QString address = u"CUPS_SERVER=127.0.0.1:%1"_s.arg(server.port());
        const int before = rowsWith(u"PRECONTO"_s);
        const ProgramRun outcome = runProgram(QStringLiteral(PALVESTRIN_PROGRAM), {u"print"_s, job},
                                              environment() + QStringList{address});
        QVERIFY2(outcome.standardOutput.endsWith(" on Cassa: printed\n"), outcome.standardError);
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
        for (const auto &each : QJsonDocument::fromJson(outcome.standardOutput).array())
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
    }
    void errors()
    {
        QFETCH(QStringList, words);
        QFETCH(QByteArray, message);
        const ProgramRun outcome = run(words);
        QVERIFY(outcome.exitStatus > 0);
        QVERIFY2(outcome.standardError.contains(message), outcome.standardError);
    }

    /// They are found before the server hears of it.
    void whatIsNotAdded_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<QByteArray>("message");
        const auto address = [](const char *text, const char *trouble) {
            QTest::newRow(text) << QStringList{u"x"_s, QString::fromUtf8(text)}
                                << "\"" + QByteArray(text) + "\" is no address of a printer: " + trouble +
                                       "; give a host such as 192.0.2.7 or a device such as /dev/usb/lp0\n";
        };
        address("192.0.2.300", "no host is called \"192.0.2.300\"");
        address("192.0.2.7:99999",
                "behind a colon there is a port, from 1 to 65535; an IPv6 address stands in "
                "brackets");
        address("192.0.2.7?wait=never", "wait is a number of seconds from 1 to 86400");
        address("palvestrin://192.0.2.7?retry=1",
                "there is no option \"retry=1\"; there are status, wait, baud and flow");
        address("palvestrin:/dev/ttyS0?baud=9601",
                "baud is one of 1200, 2400, 4800, 9600, 19200, 38400, 57600, 115200, 230400");
        address("/etc/passwd", "it names neither a host nor a device below /dev");
        address("", "it names neither a host nor a device below /dev");
        for (const char *other : {"socket://192.0.2.7:9100", "ipp://till/printers/Cassa", "usb://Maker/Model",
                                  "file:/dev/null", "serial:/dev/ttyS0?baud=9600"})
            QTest::newRow(other) << QStringList{u"x"_s, QString::fromUtf8(other)}
                                 << "\"" + QByteArray(other) +
                                        "\" is for another backend; this command adds printers through the "
                                        "backend palvestrin, by a host such as 192.0.2.7 or a device such as "
                                        "/dev/usb/lp0; lpadmin adds others\n";
        const auto name = [](const QString &text, const char *trouble) {
            QTest::newRow(trouble) << QStringList{u"--"_s, text, u"192.0.2.7"_s}
                                   << "\"" + text.toUtf8() +
                                          "\" cannot be the name of a printer: " + trouble +
                                          "; take another\n";
        };
        name(u"-x"_s, "it begins with \"-\", as options do");
        name(u""_s, "it is empty");
        name(u".."_s, "folders are called so");
        name(QString(64, u'ü'), "it is longer than 127 bytes");
        QTest::newRow("model") << QStringList{u"x"_s, u"192.0.2.7"_s, u"--model"_s, u"90mm"_s}
                               << QByteArray(
                                      "there is no model \"90mm\"; there are 80mm, 80mm-42, 58mm, generic, "
                                      "line\n");
    }
    void whatIsNotAdded()
    {
        QFETCH(QStringList, words);
        QFETCH(QByteArray, message);
        const QByteArray before = server.run(u"lpstat"_s, {u"-e"_s});
        const ProgramRun outcome = run(QStringList{u"printers"_s, u"add"_s} + words);
        QCOMPARE(outcome.exitStatus, 2);
        QCOMPARE(outcome.standardError, "palvestrin: error: " + message);
        QCOMPARE(server.run(u"lpstat"_s, {u"-e"_s}), before);
    }

    void theAddressOfTheQueue_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("given");
        QTest::addColumn<QString>("uri");
        const auto row = [](const char *model, const char *given, const char *uri) {
            QTest::addRow("%s %s", model, given)
                << QString::fromUtf8(model) << QString::fromUtf8(given) << QString::fromUtf8(uri);
        };
        row("80mm", "192.0.2.7", "palvestrin://192.0.2.7");
        row("80mm", "192.0.2.7:9101?wait=60", "palvestrin://192.0.2.7:9101/?wait=60");
        row("line", "192.0.2.7", "palvestrin://192.0.2.7/?status=never");
        row("line", "192.0.2.7?wait=60", "palvestrin://192.0.2.7/?wait=60&status=never");
        row("line", "palvestrin:/dev/tty?baud=9600", "palvestrin:/dev/tty?baud=9600&status=never");
        row("line", "palvestrin://192.0.2.7?status=ask", "palvestrin://192.0.2.7/?status=ask");
    }
    void theAddressOfTheQueue()
    {
        QFETCH(QString, model);
        QFETCH(QString, given);
        const ProgramRun added = run({u"printers"_s, u"add"_s, u"Sala <2>"_s, given, u"--model"_s, model});
        QVERIFY2(added.failure.isEmpty(), added.standardError);
        QString uri;
        for (const auto &each :
             QJsonDocument::fromJson(run({u"printers"_s, u"--json"_s}).standardOutput).array()) {
            if (each.toObject().value(u"name"_s) == u"Sala__2>"_s)
                uri = each.toObject().value(u"address"_s).toString();
        }
        QTEST(uri, "uri");
        QVERIFY2(!added.standardError.contains("at present"), added.standardError);
        server.run(u"lpadmin"_s, {u"-x"_s, u"Sala__2>"_s});
    }

    void aDeviceThatIsNotThere()
    {
        const ProgramRun added = run({u"printers"_s, u"add"_s, u"USB"_s, u"/dev/usb/lp99"_s});
        QCOMPARE(added.exitStatus, 0);
        QVERIFY2(
            added.standardError.contains("palvestrin: note: there is no /dev/usb/lp99 at present; switch the "
                                         "printer on, and look for its device in /dev/usb\n"),
            added.standardError);
        server.run(u"lpadmin"_s, {u"-x"_s, u"USB"_s});
    }

    /// lpadmin asks for it on the terminal, and gets empty lines.
    void aPasswordIsAskedFor()
    {
        const ProgramRun outcome =
            runShell(u"export CUPS_SERVER=127.0.0.1:%1\n"
                     "for line in 1 2 3 4 5 6 7 8; do sleep 0.5; echo; done |\n"
                     "script -qec 'palvestrin printers add Bar 192.0.2.7' /dev/null"_s.arg(server.port()));
        QVERIFY2(outcome.standardOutput.contains("Password for root on "), outcome.standardOutput);
        QVERIFY2(outcome.standardOutput.contains("palvestrin: error: printer Bar was not added: lpadmin: "),
                 outcome.standardOutput);
        QCOMPARE(outcome.exitStatus, 16);
    }

    void whatLpadminSaysIsPassedOn()
    {
        const ProgramRun added = run({u"printers"_s, u"add"_s, u"Bar"_s, u"192.0.2.7"_s});
        QVERIFY2(added.standardError.contains("palvestrin: note: lpadmin: Printer drivers are deprecated"),
                 added.standardError);
        server.run(u"lpadmin"_s, {u"-x"_s, u"Bar"_s});
        const ProgramRun away =
            runAt(home.path(u"nobody"_s), {u"printers"_s, u"add"_s, u"Bar"_s, u"192.0.2.7"_s});
        QCOMPARE(away.exitStatus, 16);
        QVERIFY2(away.standardError.contains("printer Bar was not added: lpadmin: "), away.standardError);
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
