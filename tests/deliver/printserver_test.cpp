// The backend under a real print server, and printers that misbehave: what the server says of a job is what
// the roll of the printer says.

#include "printertest.h"
#include "program.h"

#include <QDateTime>
#include <QElapsedTimer>

#include <algorithm>
#include <arpa/inet.h>
#include <csignal>
#include <cstddef>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

// KiB that a ticket of 400 KB may take over a short one; the sanitizer keeps what was freed.
#ifdef __SANITIZE_ADDRESS__
constexpr int longTicketMemory = 64'000;
#else
constexpr int longTicketMemory = 300;
#endif

/// One that takes a connection, and nothing of what comes.
class RawPrinter
{
public:
    RawPrinter()
    {
        const int few = 2048; // bytes that the system takes for it
        setsockopt(listener, SOL_SOCKET, SO_RCVBUF, &few, sizeof few);
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof address;
        if (bind(listener, reinterpret_cast<sockaddr *>(&address), length) != 0 || listen(listener, 1) != 0 ||
            getsockname(listener, reinterpret_cast<sockaddr *>(&address), &length) != 0)
            qFatal("the raw printer cannot listen");
    }
    ~RawPrinter()
    {
        close(connection);
        close(listener);
    }
    RawPrinter(const RawPrinter &) = delete;
    RawPrinter &operator=(const RawPrinter &) = delete;

    QByteArray uri(const QByteArray &options) const
    {
        return "palvestrin://127.0.0.1:" + QByteArray::number(ntohs(address.sin_port)) + "/?" + options;
    }
    void accept() { connection = ::accept4(listener, nullptr, nullptr, SOCK_CLOEXEC); }
    void closeItsSide() const { shutdown(connection, SHUT_WR); }

private:
    const int listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    int connection = -1;
    sockaddr_in address{};
};

} // namespace

class PrintServerTest : public PrinterTest
{
    Q_OBJECT

private:
    /// A ticket of a program that knows nothing of print servers.
    static void sendRaw(int port, const QByteArray &bytes)
    {
        const int connection = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        address.sin_port = htons(uint16_t(port));
        if (::connect(connection, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0 ||
            write(connection, bytes.constData(), std::size_t(bytes.size())) != bytes.size())
            qFatal("the raw client cannot print");
        close(connection);
    }
    /// A process of nobody's that has the name of the printer.
    static pid_t keepPrinter(int port)
    {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        const QByteArray path = '\0' + QByteArray("palvestrin-printer/127.0.0.1 ") + QByteArray::number(port);
        std::ranges::copy(path, address.sun_path);
        const auto length = socklen_t(offsetof(sockaddr_un, sun_path) + std::size_t(path.size()));
        const pid_t process = fork();
        if (process != 0)
            return process;
        const int descriptor = setuid(65534) == 0 ? socket(AF_UNIX, SOCK_STREAM, 0) : -1;
        if (bind(descriptor, reinterpret_cast<const sockaddr *>(&address), length) != 0 ||
            listen(descriptor, 9) != 0)
            _exit(1);
        for (;;)
            pause();
    }

private Q_SLOTS:
    void printedIsWhatThePrinterConfirms()
    {
        PrinterProcess printer;
        const int job = server.submit(queueFor(printer), ticket(1));
        const JobInfo info = server.awaitState(job, {JobInfo::Completed});
        QCOMPARE(info.state, int(JobInfo::Completed));
        QCOMPARE(info.sheets, 1);
        QCOMPARE(info.message, QByteArray());
        QVERIFY(isWhole(printer, 1));
    }

    void copiesOfAFile()
    {
        PrinterProcess printer;
        const int job = server.submit(queueFor(printer), ticket(2), {u"-n"_s, u"3"_s});
        QCOMPARE(server.awaitState(job, {JobInfo::Completed}).sheets, 1);
        QCOMPARE(printer.count(lastRow(2)), 3);
    }

    void aJobOfSeveralDocuments()
    {
        PrinterProcess printer;
        const ScratchFolder files;
        const QString first = files.write(u"first"_s, ticket(34));
        const QString second = files.write(u"second"_s, ticket(35));
        server.run(u"lp"_s, {u"-d"_s, queueFor(printer), first, second});
        QTRY_VERIFY_WITH_TIMEOUT(isWhole(printer, 34) && isWhole(printer, 35), 10'000);
    }

    void aPrinterThatRefusesIsWaitedFor()
    {
        PrinterProcess printer;
        printer.habit("refuse on");
        const QString queue = queueFor(printer);
        const int job = server.submit(queue, ticket(3));
        QTRY_VERIFY_WITH_TIMEOUT(server.reasons(queue).contains("offline-report"), 10'000);
        QVERIFY(server.job(job).message.contains("Connection refused"));
        printer.habit("refuse off");
        QCOMPARE(server.awaitState(job, {JobInfo::Completed}).sheets, 1);
        QVERIFY(isWhole(printer, 3));
    }

    void aPrinterThatNeverReadsGetsNothing()
    {
        PrinterProcess printer;
        const QString queue = queueFor(printer);
        acquaint(queue);
        printer.habit("read off");
        const int job = server.submit(queue, ticket(4));
        QTRY_VERIFY_WITH_TIMEOUT(server.job(job).message.contains("does not say how it is"), 15'000);
        QCOMPARE(printer.count(firstRow(4)), 0);
        printer.habit("read on");
        QCOMPARE(server.awaitState(job, {JobInfo::Completed}).sheets, 1);
        QVERIFY(isWhole(printer, 4));
    }

    void aConnectionThatBreaksOffLeavesADoubt()
    {
        PrinterProcess printer;
        const QString queue = queueFor(printer);
        acquaint(queue);
        printer.habit("reset 100");
        const int job = server.submit(queue, ticket(5));
        const JobInfo info = server.awaitState(job, {JobInfo::Held});
        QCOMPARE(info.state, int(JobInfo::Held));
        QVERIFY2(info.message.contains("It is unknown whether \"job\" was printed"), info.message);
        QCOMPARE(printer.count(lastRow(5)), 0);

        server.release(job);
        QCOMPARE(server.awaitState(job, {JobInfo::Completed}).sheets, 1);
        QCOMPARE(printer.count(lastRow(5)), 1);
        const QStringList roll = printer.roll();
        QCOMPARE(roll.count(u"C O P Y"_s) + roll.count(u"COPY"_s), 1);
    }

    void paperThatEndsInTheMiddle()
    {
        PrinterProcess printer;
        const QString queue = queueFor(printer);
        acquaint(queue);
        printer.habit("paper 3");
        const int job = server.submit(queue, ticket(6));
        QTRY_VERIFY_WITH_TIMEOUT(server.reasons(queue).contains("media-empty-error"), 15'000);
        QTest::qSleep(3000); // longer than a printer that is ready may be silent
        QCOMPARE(server.job(job).state, int(JobInfo::Processing));
        QCOMPARE(server.job(job).message, QByteArray("The paper is out; put in a new roll."));
        printer.habit("paper 1000");
        QCOMPARE(server.awaitState(job, {JobInfo::Completed}).sheets, 1);
        QVERIFY(isWhole(printer, 6));
        QVERIFY(!server.reasons(queue).contains("media-empty"));
    }

    /// It is longer than all that is between the server and the paper, so it stops while it is being sent.
    void paperThatEndsInALongTicket()
    {
        PrinterProcess printer;
        const QString queue = queueFor(printer, "wait=20");
        acquaint(queue);
        printer.habit("paper 3");
        const int brief = server.submit(queue, ticket(36));
        QTRY_VERIFY_WITH_TIMEOUT(server.reasons(queue).contains("media-empty-error"), 15'000);
        const int usualMemory = server.peakOfBackends();
        printer.habit("paper 500");
        QCOMPARE(server.awaitState(brief, {JobInfo::Completed}).sheets, 1);
        constexpr int rows = 30'000;
        const int job = server.submit(queue, ticket(18, rows));
        QTRY_VERIFY_WITH_TIMEOUT(server.job(job).message.contains("takes nothing more at present"), 20'000);
        QVERIFY2(server.peakOfBackends() < usualMemory + longTicketMemory,
                 qPrintable(QString::number(server.peakOfBackends())));
        printer.habit("paper 1000000");
        QCOMPARE(server.awaitState(job, {JobInfo::Completed}).sheets, 1);
        QVERIFY(isWhole(printer, 18));
        QCOMPARE(printer.roll().filter(u"row 18."_s).size(), qsizetype(rows));
    }

    void whatStopsThePrinterIsWaitedFor_data()
    {
        QTest::addColumn<QByteArray>("habit");
        QTest::addColumn<QByteArray>("cure");
        QTest::addColumn<QByteArray>("reason");
        QTest::newRow("cover") << QByteArray("cover open") << QByteArray("cover closed")
                               << QByteArray("cover-open-error");
        QTest::newRow("cutter") << QByteArray("cutter stuck") << QByteArray("cutter free")
                                << QByteArray("media-jam-error");
    }
    void whatStopsThePrinterIsWaitedFor()
    {
        QFETCH(QByteArray, habit);
        QFETCH(QByteArray, cure);
        QFETCH(QByteArray, reason);
        PrinterProcess printer;
        const QString queue = queueFor(printer);
        acquaint(queue);
        printer.habit(habit);
        const int job = server.submit(queue, ticket(7));
        QTRY_VERIFY_WITH_TIMEOUT(server.reasons(queue).contains(reason), 15'000);
        QCOMPARE(printer.count(firstRow(7)), 0);
        printer.habit(cure);
        QCOMPARE(server.awaitState(job, {JobInfo::Completed}).sheets, 1);
        QVERIFY(isWhole(printer, 7));
        QVERIFY(!server.reasons(queue).contains(reason));
    }

    /// The printer waits for the rest of a row of dots, and would take the head of the next ticket for it.
    void aTicketTornInAPictureSparesTheNext()
    {
        PrinterProcess printer;
        const QString queue = queueFor(printer);
        acquaint(queue);
        printer.habit("reset 300");
        QCOMPARE(server.awaitState(server.submit(queue, ticketWithPicture(8)), {JobInfo::Held}).state,
                 int(JobInfo::Held));
        const int next = server.submit(queue, ticket(18));
        QCOMPARE(server.awaitState(next, {JobInfo::Completed}).sheets, 1);
        QVERIFY(isWhole(printer, 18));
    }

    /// It can be asked how it is, and not whether all is on paper.
    void whatIsInThePrinterIsNotOnPaper()
    {
        PrinterProcess printer;
        printer.habit("status unproven");
        const QString queue = queueFor(printer);
        acquaint(queue);
        printer.habit("paper 3");
        const int job = server.submit(queue, ticket(19));
        QTRY_VERIFY_WITH_TIMEOUT(server.reasons(queue).contains("media-empty-error"), 15'000);
        QCOMPARE(server.job(job).state, int(JobInfo::Processing));
        printer.habit("paper 100000");
        QVERIFY(server.awaitState(job, {JobInfo::Completed}).message.startsWith("Sent, but not confirmed"));
        QVERIFY(isWhole(printer, 19));
    }

    /// It is switched off, perhaps, behind a box that takes connections for it.
    void aPrinterThatAnsweredOnceIsNotServedInSilence()
    {
        PrinterProcess printer;
        printer.habit("status unproven");
        const QString queue = queueFor(printer);
        acquaint(queue);
        const QDir folder(server.folder() + u"/cache/palvestrin"_s);
        QFile file(folder.filePath(u"127.0.0.1 %1.printer"_s.arg(printer.port())));
        QVERIFY2(file.open(QIODevice::ReadWrite), qPrintable(folder.entryList().join(u' ')));
        QVERIFY(
            file.setFileTime(QDateTime::currentDateTime().addDays(-2), QFileDevice::FileModificationTime));
        printer.habit("status off");
        const int job = server.submit(queue, ticket(21));
        QTRY_VERIFY_WITH_TIMEOUT(server.job(job).message.contains("does not say how it is"), 15'000);
        QCOMPARE(printer.count(firstRow(21)), 0);
        printer.habit("status unproven");
        QCOMPARE(server.awaitState(job, {JobInfo::Completed}, 30).state, int(JobInfo::Completed));
        QVERIFY(isWhole(printer, 21));
    }

    /// It is switched off while the proof is waited for.
    void aPrinterThatFallsSilentIsStillKnown()
    {
        PrinterProcess printer;
        const QString queue = queueFor(printer, "wait=4");
        acquaint(queue);
        printer.habit("paper 3");
        const int first = server.submit(queue, ticket(32));
        QTRY_VERIFY_WITH_TIMEOUT(server.reasons(queue).contains("media-empty-error"), 15'000);
        printer.habit("status unproven");
        printer.habit("paper 100000");
        QTRY_VERIFY_WITH_TIMEOUT(!server.reasons(queue).contains("media-empty-error"), 10'000);
        printer.habit("status off");
        QCOMPARE(server.awaitState(first, {JobInfo::Held}).state, int(JobInfo::Held));
        const int second = server.submit(queue, ticket(33));
        QTRY_VERIFY_WITH_TIMEOUT(server.job(second).message.contains("does not say how it is"), 15'000);
        QCOMPARE(printer.count(firstRow(33)), 0);
    }

    void aPrinterWasReplacedByOneThatCannotConfirm()
    {
        PrinterProcess printer;
        const QString queue = queueFor(printer);
        acquaint(queue);
        printer.habit("status unproven");
        const int first = server.submit(queue, ticket(22));
        QVERIFY(server.awaitState(first, {JobInfo::Held})
                    .message.contains("did not confirm it within 2 seconds"));
        const int second = server.submit(queue, ticket(23));
        QVERIFY(
            server.awaitState(second, {JobInfo::Completed}).message.startsWith("Sent, but not confirmed"));
        QVERIFY(isWhole(printer, 22) && isWhole(printer, 23));
    }

    /// By an administrator, or when the memory runs out; the server knows nothing of it.
    void aBackendIsStoppedByOthers()
    {
        PrinterProcess printer;
        const QString queue = queueFor(printer);
        acquaint(queue);
        const auto stop = [this] {
            for (const qint64 process : server.backends())
                ::kill(pid_t(process), SIGTERM);
        };
        printer.habit("cover open");
        const int before = server.submit(queue, ticket(26));
        QTRY_VERIFY_WITH_TIMEOUT(server.reasons(queue).contains("cover-open-error"), 15'000);
        stop();
        printer.habit("cover closed");
        QCOMPARE(server.awaitState(before, {JobInfo::Completed}).sheets, 1);
        QVERIFY(isWhole(printer, 26));

        printer.habit("paper 3");
        const int after = server.submit(queue, ticket(27));
        QTRY_VERIFY_WITH_TIMEOUT(server.reasons(queue).contains("media-empty-error"), 15'000);
        stop();
        QCOMPARE(server.awaitState(after, {JobInfo::Held}).state, int(JobInfo::Held));
        printer.habit("paper 100000");
        QTRY_VERIFY_WITH_TIMEOUT(isWhole(printer, 27), 5000);
    }

    void aSlowLine()
    {
        PrinterProcess printer;
        printer.habit("speed 960");
        const int job = server.submit(queueFor(printer, "wait=5"), ticket(8, 300)); // 3 seconds
        QCOMPARE(server.awaitState(job, {JobInfo::Completed}).sheets, 1);
        QVERIFY(isWhole(printer, 8));
    }

    void garbageIsNoAnswer()
    {
        PrinterProcess printer;
        printer.habit("status garbage");
        const int job = server.submit(queueFor(printer), ticket(9));
        const JobInfo info = server.awaitState(job, {JobInfo::Completed});
        QCOMPARE(info.state, int(JobInfo::Completed));
        QCOMPARE(info.sheets, 0);
        QVERIFY2(info.message.startsWith("Sent, but not confirmed"), info.message);
        QVERIFY(isWhole(printer, 9));
    }

    void aFloodIsNoAnswer()
    {
        PrinterProcess printer;
        printer.habit("status flood");
        const int job = server.submit(queueFor(printer), ticket(24));
        const JobInfo info = server.awaitState(job, {JobInfo::Completed});
        QCOMPARE(info.state, int(JobInfo::Completed));
        QVERIFY2(info.message.startsWith("Sent, but not confirmed"), info.message);
        QVERIFY(isWhole(printer, 24));
    }

    void aPrinterThatHangsUpAtTheProof()
    {
        PrinterProcess printer;
        printer.habit("vanish always");
        const int job = server.submit(queueFor(printer), ticket(25));
        const JobInfo info = server.awaitState(job, {JobInfo::Completed});
        QCOMPARE(info.state, int(JobInfo::Completed));
        QVERIFY2(info.message.startsWith("Sent, but not confirmed"), info.message);
        QVERIFY(isWhole(printer, 25));
    }

    /// The server starts it again at once, so the backend takes its time.
    void whatCannotBeIsNotTriedWithoutAPause()
    {
        PrinterProcess printer;
        printer.habit("status unproven");
        const int job = server.submit(queueFor(printer, "status=required&wait=1"), ticket(26));
        QTRY_VERIFY_WITH_TIMEOUT(server.job(job).message.contains("cannot confirm what is on paper"), 15'000);
        const qsizetype started = server.logOf(job).count("Started backend");
        QTest::qSleep(4000);
        QVERIFY(server.logOf(job).count("Started backend") <= started + 2);
        QCOMPARE(printer.count(firstRow(26)), 0);
        printer.habit("status on");
        QCOMPARE(server.awaitState(job, {JobInfo::Completed}).sheets, 1);
    }

    void aPrinterThatAnswersNothing()
    {
        PrinterProcess printer;
        printer.habit("status off");
        const QString queue = queueFor(printer, "wait=4");
        const int first = server.submit(queue, ticket(10));
        QVERIFY(server.awaitState(first, {JobInfo::Completed}).message.startsWith("Sent, but not confirmed"));
        QElapsedTimer timer;
        timer.start();
        const int second = server.submit(queue, ticket(11)); // it is known by now
        QCOMPARE(server.awaitState(second, {JobInfo::Completed}).sheets, 0);
        QVERIFY2(timer.elapsed() < 3800, "it was asked again");
        QVERIFY(isWhole(printer, 10) && isWhole(printer, 11));
    }

    void whatIsRequiredIsNotSentWithout()
    {
        PrinterProcess printer;
        printer.habit("status off");
        const int job = server.submit(queueFor(printer, "status=required&wait=1"), ticket(12));
        QTRY_VERIFY_WITH_TIMEOUT(server.job(job).message.contains("does not say how it is"), 15'000);
        QCOMPARE(printer.count(firstRow(12)), 0);
        printer.habit("status on");
        QCOMPARE(server.awaitState(job, {JobInfo::Completed}).sheets, 1);
        QVERIFY(isWhole(printer, 12));
    }

    void lateAnswers()
    {
        PrinterProcess printer;
        printer.habit("late 400");
        const int job = server.submit(queueFor(printer, "wait=5"), ticket(13));
        QCOMPARE(server.awaitState(job, {JobInfo::Completed}).sheets, 1);
        QVERIFY(isWhole(printer, 13));
    }

    void aPrinterThatDisappearsAfterTheLastByte()
    {
        PrinterProcess printer;
        const QString queue = queueFor(printer);
        acquaint(queue);
        printer.habit("vanish on");
        const int job = server.submit(queue, ticket(14));
        QCOMPARE(server.awaitState(job, {JobInfo::Held}).state, int(JobInfo::Held));
        QVERIFY(isWhole(printer, 14));
    }

    void aJobIsCancelled()
    {
        PrinterProcess printer;
        const QString queue = queueFor(printer, "wait=60");
        acquaint(queue);
        printer.habit("cover open");
        const int job = server.submit(queue, ticket(15));
        QTRY_VERIFY_WITH_TIMEOUT(server.reasons(queue).contains("cover-open-error"), 15'000);
        server.run(u"cancel"_s, {QString::number(job)});
        QTRY_VERIFY_WITH_TIMEOUT(server.backends().isEmpty(), 3000);
        QCOMPARE(server.job(job).state, int(JobInfo::Canceled));
        printer.habit("cover closed");
        acquaint(queue);
        QCOMPARE(printer.count(firstRow(15)), 0);
    }

    /// The server kills its backend then, and tells it nothing.
    void aJobIsRemoved()
    {
        PrinterProcess printer;
        const QString queue = queueFor(printer);
        acquaint(queue);
        printer.habit("cover open");
        const int job = server.submit(queue, ticket(29));
        QTRY_VERIFY_WITH_TIMEOUT(server.reasons(queue).contains("cover-open-error"), 15'000);
        server.run(u"cancel"_s, {u"-x"_s, QString::number(job)});
        QTRY_VERIFY_WITH_TIMEOUT(server.backends().isEmpty(), 10'000);
        printer.habit("cover closed");
        acquaint(queue);
        QCOMPARE(printer.count(firstRow(29)), 0);
    }

    void aDisabledPrinterKeepsItsJob()
    {
        PrinterProcess printer;
        const QString queue = queueFor(printer);
        acquaint(queue);
        printer.habit("cover open");
        const int job = server.submit(queue, ticket(19));
        QTRY_VERIFY_WITH_TIMEOUT(server.reasons(queue).contains("cover-open-error"), 15'000);
        server.run(u"cupsdisable"_s, {queue});
        QTRY_VERIFY_WITH_TIMEOUT(server.backends().isEmpty(), 5000);
        QCOMPARE(server.job(job).state, int(JobInfo::Pending));
        printer.habit("cover closed");
        server.run(u"cupsenable"_s, {queue});
        QCOMPARE(server.awaitState(job, {JobInfo::Completed}).sheets, 1);
        QVERIFY(isWhole(printer, 19));
    }

    void aReprintIsAskedForByAPerson()
    {
        PrinterProcess printer;
        const int job = server.submit(queueFor(printer), ticket(16));
        QCOMPARE(server.awaitState(job, {JobInfo::Completed}).sheets, 1);
        server.run(u"lp"_s, {u"-i"_s, QString::number(job), u"-H"_s, u"restart"_s});
        QTRY_COMPARE_WITH_TIMEOUT(printer.count(lastRow(16)), 2, 10'000);
        QCOMPARE(printer.count(u"C O P Y"_s) + printer.count(u"COPY"_s), 1);
    }

    /// It was cancelled before anything was printed, and is wanted after all; then the server dies before it
    /// has noted the end.
    void aJobThatWasCancelledOnceIsPrintedOnce()
    {
        PrinterProcess printer;
        const QString queue = queueFor(printer);
        acquaint(queue);
        printer.habit("cover open");
        const int job = server.submit(queue, ticket(24));
        QTRY_VERIFY_WITH_TIMEOUT(server.reasons(queue).contains("cover-open-error"), 15'000);
        server.run(u"cancel"_s, {QString::number(job)});
        QTRY_VERIFY_WITH_TIMEOUT(server.backends().isEmpty(), 10'000);
        QTest::qSleep(1100); // the server notes whole seconds
        server.run(u"lp"_s, {u"-i"_s, QString::number(job), u"-H"_s, u"restart"_s});
        QTRY_VERIFY_WITH_TIMEOUT(!server.backends().isEmpty(), 10'000);
        const QString file = server.folder() + u"/spool/c%1"_s.arg(job, 5, 10, QChar(u'0'));
        QTRY_VERIFY_WITH_TIMEOUT(server.reasons(queue).contains("cover-open-error"), 15'000);
        QVERIFY(QFile::copy(file, file + u".before"_s));
        printer.habit("cover closed");
        QCOMPARE(server.awaitState(job, {JobInfo::Completed}).sheets, 1);
        server.kill();
        QVERIFY(QFile::remove(file) && QFile::rename(file + u".before"_s, file));
        server.start();
        QCOMPARE(server.awaitState(job, {JobInfo::Completed}).state, int(JobInfo::Completed));
        QVERIFY(isWhole(printer, 24));
    }

    /// Two backends for one job: the second one waits, and then does not know what the server thinks of it.
    void aJobIsPrintedByOneBackend()
    {
        PrinterProcess printer;
        printer.habit("late 200");
        const ScratchFolder files;
        const QStringList words{
            u"7"_s, u"user"_s, u"title"_s, u"1"_s, u"job-uuid=urn:uuid:1"_s, files.write(u"t"_s, ticket(39))};
        const QStringList environment{u"DEVICE_URI="_s + QString::fromUtf8(printer.uri("wait=2")),
                                      u"CUPS_CACHEDIR="_s + files.path(), u"CUPS_SERVER=/nowhere"_s};
        QProcess first;
        first.setEnvironment(environment);
        first.setReadChannel(QProcess::StandardError);
        first.start(QStringLiteral(BACKEND), words);
        QVERIFY(first.waitForReadyRead(5000));
        const ProgramRun second = runProgram(QStringLiteral(BACKEND), words, environment);
        QVERIFY(first.waitForFinished(10'000)); // it has ended before the second one began
        QCOMPARE(first.exitCode(), 0);
        QCOMPARE(second.exitStatus, 3);
        QVERIFY2(second.standardError.contains("It is unknown whether \"title\" was printed"),
                 second.standardError);
        QVERIFY(isWhole(printer, 39));
    }

    /// Whole tickets stand on the roll, one behind the other, whoever sent them.
    void ticketsNeverInterleave()
    {
        PrinterProcess printer;
        printer.habit("speed 20000");
        server.addQueue(u"first"_s, printer.uri("wait=30"));
        server.addQueue(u"second"_s,
                        "palvestrin://localhost:" + QByteArray::number(printer.port()) + "/?wait=30");
        QList<int> jobs;
        for (int count = 0; count < 8; ++count) {
            jobs += server.submit(u"first"_s, ticket(50 + count));
            jobs += server.submit(u"second"_s, ticket(60 + count));
            sendRaw(printer.port(), ticket(70 + count));
        }
        for (const int job : jobs)
            QCOMPARE(server.awaitState(job, {JobInfo::Completed}).sheets, 1);
        QTRY_COMPARE_WITH_TIMEOUT(printer.roll().filter(u"end "_s).size(), qsizetype(24), 20'000);
        QString open;
        for (const QString &row : printer.roll()) {
            const QString owner = row.section(u' ', 1, 1).section(u'.', 0, 0);
            if (row.startsWith(u"ticket "_s))
                open = owner;
            if (!owner.isEmpty())
                QCOMPARE(owner, open);
        }
    }

    void aPrinterHangsUpWhenItIsAsked()
    {
        RawPrinter printer;
        server.addQueue(u"shy"_s, printer.uri("wait=4"));
        const int job = server.submit(u"shy"_s, ticket(82));
        printer.accept();
        printer.closeItsSide();
        QTRY_COMPARE_WITH_TIMEOUT(server.job(job).message,
                                  QByteArray("Not printed yet: the connection broke off when the printer was "
                                             "asked how it is: the printer closed the connection."),
                                  10'000);
        QCOMPARE(server.job(job).state, int(JobInfo::Processing));
    }

    /// What it has not taken by then is lost.
    void aPrinterClosesItsSideEarly()
    {
        RawPrinter printer;
        server.addQueue(u"early"_s, printer.uri("status=never&wait=4"));
        const int job = server.submit(u"early"_s, ticket(78, 1500));
        printer.accept();
        QTRY_VERIFY_WITH_TIMEOUT(server.job(job).message == "Printing.", 10'000);
        QTest::qSleep(1000); // all is written by then, and most of it not taken
        printer.closeItsSide();
        const JobInfo info = server.awaitState(job, {JobInfo::Completed, JobInfo::Held});
        QCOMPARE(info.state, int(JobInfo::Held));
        QVERIFY2(info.message.contains("the printer did not take all of it within 4 seconds"), info.message);
    }

    /// The other printers of a class are no way out of a doubt.
    void aDoubtInAClassIsNotPrintedElsewhere()
    {
        PrinterProcess first;
        PrinterProcess second;
        for (const PrinterProcess *printer : {&first, &second}) {
            const QString queue = queueFor(*printer);
            acquaint(queue);
            addToClass(u"either"_s, queue);
        }
        for (PrinterProcess *printer : {&first, &second})
            printer->habit("reset 100");
        const int job = server.submit(u"either"_s, ticket(41));
        QCOMPARE(server.awaitState(job, {JobInfo::Completed, JobInfo::Held}).state, int(JobInfo::Held));
        QVERIFY(server.job(job).message.startsWith("It is unknown whether"));
        QCOMPARE(first.count(firstRow(41)) + second.count(firstRow(41)), 1);
        server.run(u"lpadmin"_s, {u"-x"_s, u"either"_s});
    }

    /// Not for ever, while another one is free.
    void aClassPassesABusyPrinterBy()
    {
        PrinterProcess busy;
        PrinterProcess free;
        const QString queue = queueFor(busy);
        acquaint(queue);
        for (const auto &[name, printer] : {std::pair(u"way"_s, &busy), std::pair(u"other"_s, &free)}) {
            server.addQueue(name, printer->uri("wait=60"));
            addToClass(u"pair"_s, name);
        }
        busy.habit("cover open");
        server.submit(queue, ticket(43));
        QTRY_VERIFY_WITH_TIMEOUT(server.reasons(queue).contains("cover-open-error"), 15'000);
        for (const int each : {46, 47})
            server.submit(u"pair"_s, ticket(each));
        QTRY_VERIFY_WITH_TIMEOUT(isWhole(free, 46) && isWhole(free, 47), 30'000);
        busy.habit("cover closed");
        server.run(u"lpadmin"_s, {u"-x"_s, u"pair"_s});
    }

    /// The names that keep tickets apart are everybody's, so it is said who has one.
    void somebodyElseKeepsThePrinter()
    {
        PrinterProcess printer;
        const QString queue = queueFor(printer);
        const pid_t stranger = keepPrinter(printer.port());
        const int job = server.submit(queue, ticket(42));
        QTRY_COMPARE_WITH_TIMEOUT(server.job(job).message,
                                  "Not printed yet: process " + QByteArray::number(stranger) +
                                      " of another user keeps the printer; look what it is, and end it.",
                                  10'000);
        ::kill(stranger, SIGKILL);
        QCOMPARE(waitpid(stranger, nullptr, 0), stranger);
        QCOMPARE(server.awaitState(job, {JobInfo::Completed}).sheets, 1);
    }
};

QTEST_GUILESS_MAIN(PrintServerTest)
#include "printserver_test.moc"
