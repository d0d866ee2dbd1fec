// Printers on serial lines: the backend at one end of a terminal, the test at the other one.

#include "printerprocess.h"
#include "printserver.h"

#include <QElapsedTimer>
#include <QScopeGuard>
#include <QTest>

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char xon = '\x11';
constexpr char xoff = '\x13';

/// The printer's end of a line.
class Line
{
public:
    Line()
    {
        if (end < 0 || grantpt(end) != 0 || unlockpt(end) != 0)
            qFatal("the test needs a terminal");
        other = open(device().constData(), O_RDWR | O_NOCTTY | O_CLOEXEC);
        termios settings;
        tcgetattr(other, &settings);
        cfmakeraw(&settings);
        settings.c_iflag |= IXON;
        if (tcsetattr(other, TCSANOW, &settings) != 0)
            qFatal("the terminal cannot be set up");
    }
    ~Line()
    {
        hangUp();
        close(other);
    }
    Line(const Line &) = delete;
    Line &operator=(const Line &) = delete;

    QByteArray device() const { return ptsname(end); }
    QByteArray uri(const QByteArray &options) const { return "palvestrin:" + device() + '?' + options; }
    bool say(const QByteArray &bytes) const
    {
        return write(end, bytes.constData(), std::size_t(bytes.size())) == bytes.size();
    }
    /// Takes what comes, up to that question.
    bool isAsked(char question) const
    {
        QByteArray bytes;
        while (!bytes.endsWith(QByteArray("\x10\x04") + question)) {
            const QByteArray next = receive(1, 5000);
            if (next.isEmpty())
                return false;
            bytes += next;
        }
        return true;
    }
    /// What comes from the other end, until it has sent `most` bytes or is silent for so long.
    QByteArray receive(qsizetype most, int milliseconds) const
    {
        QByteArray bytes;
        QElapsedTimer silence;
        silence.start();
        while (bytes.size() < most && silence.elapsed() < milliseconds) {
            char piece[4096];
            pollfd waiting{end, POLLIN, 0};
            const ssize_t length =
                poll(&waiting, 1, milliseconds) > 0
                    ? read(end, piece, std::size_t(std::min(qsizetype(sizeof piece), most - bytes.size())))
                    : 0;
            if (length > 0) {
                bytes.append(piece, length);
                silence.start();
            } else { // the other end is not open yet, or not any more
                QTest::qSleep(5);
            }
        }
        return bytes;
    }
    void hangUp()
    {
        if (end >= 0)
            close(end);
        end = -1;
    }

private:
    int end = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    int other = -1; ///< keeps what is said while no backend has it open
};

/// What the backend sends: zeros free the printer from what was torn before.
QByteArray sent(const QByteArray &ticket)
{
    return QByteArray(79, '\0') + ticket;
}

} // namespace

class DevicesTest : public QObject
{
    Q_OBJECT

private:
    PrintServer server;

private Q_SLOTS:
    void cleanup() { server.run(u"cancel"_s, {u"-a"_s, u"-x"_s}); }

    /// Of a printer that answers nothing.
    void aSerialLine()
    {
        const Line line;
        server.addQueue(u"serial"_s, line.uri("status=never&wait=5&baud=9600"));
        constexpr int rows = 3000; // more than the line keeps
        const int job = server.submit(u"serial"_s, ticket(45, rows));
        const QByteArray expected = sent(ticket(45, rows));
        QByteArray got = line.receive(1000, 10'000);
        QVERIFY(line.say({1, xoff}));
        got += line.receive(expected.size(), 300);
        QVERIFY2(got.size() < expected.size() / 2, qPrintable(QString::number(got.size())));
        QVERIFY(line.say({1, xon}));
        got += line.receive(expected.size() - got.size(), 10'000);
        QCOMPARE(got, expected);
        QVERIFY(server.awaitState(job, {JobInfo::Completed}).message.startsWith("Sent, but not confirmed"));
    }

    /// In the middle of a ticket.
    void aDeviceDisappears()
    {
        Line line;
        server.addQueue(u"gone"_s, line.uri("status=never&wait=30"));
        const int job = server.submit(u"gone"_s, ticket(46, 3000));
        line.receive(1000, 10'000);
        QVERIFY(line.say({1, xoff}));
        QTest::qSleep(300);
        line.hangUp();
        const JobInfo info = server.awaitState(job, {JobInfo::Completed, JobInfo::Held});
        QCOMPARE(info.state, int(JobInfo::Held));
        QVERIFY2(info.message.contains("the connection broke off"), info.message);
    }
    /// It said that it is ready, and the line stands still: so there is something that it did not take.
    void aDeviceDisappearsBehindTheLastByte()
    {
        Line line;
        server.addQueue(u"behind"_s, line.uri("wait=3"));
        const int job = server.submit(u"behind"_s, ticket(51));
        for (const char question : {1, 2, 3, 4})
            QVERIFY(line.isAsked(question) && line.say("\x12"));
        for (const char question : {1, 2, 3}) // it gave no proof, so it is asked again behind the ticket
            QVERIFY(line.isAsked(question) && line.say("\x12"));
        QVERIFY(line.isAsked(4) && line.say({1, xoff}) && line.say("\x12"));
        QTest::qSleep(300);
        line.hangUp();
        const JobInfo info = server.awaitState(job, {JobInfo::Completed, JobInfo::Held});
        QCOMPARE(info.state, int(JobInfo::Held));
        QVERIFY2(info.message.contains("the connection broke off"), info.message);
    }

    /// To questions of a backend that did not live to hear them.
    void staleAnswers()
    {
        const Line line;
        server.addQueue(u"stale"_s, line.uri("wait=5"));
        QVERIFY(line.say("\x12"));
        const int job = server.submit(u"stale"_s, ticket(47));
        const QByteArray coverIsOpen[] = {"\x1A", "\x16", "\x12", "\x12"};
        for (int round = 0; round < 2; ++round) {
            for (const char question : {1, 2, 3, 4})
                QVERIFY(line.isAsked(question) && line.say(coverIsOpen[question - 1]));
        }
        QVERIFY2(server.reasons(u"stale"_s).contains("cover-open-error"), server.reasons(u"stale"_s));
        QVERIFY(server.job(job).state == JobInfo::Processing);
    }

    /// It is offline, and no printer that never answers.
    void aPrinterThatTakesNoQuestionIsNotSilent()
    {
        const Line line;
        server.addQueue(u"offline"_s, line.uri("wait=2"));
        QVERIFY(line.say({1, xoff}));
        const int job = server.submit(u"offline"_s, ticket(48));
        QTRY_VERIFY_WITH_TIMEOUT(server.job(job).message.contains("does not say how it is"), 10'000);
        QCOMPARE(server.job(job).state, int(JobInfo::Processing));
    }

    /// While its ticket waited for another one: such as when printers come back in another order.
    void aPrinterIsAtAnotherPlace()
    {
        const Line here;
        const Line there;
        const QString link = u"/dev/shm/palvestrin-test-%1"_s.arg(getpid());
        const auto removal = qScopeGuard([&link] { QFile::remove(link); });
        const auto lead = [&link](const Line &line) {
            QFile::remove(link);
            return QFile::link(QString::fromUtf8(line.device()), link);
        };
        server.addQueue(u"here"_s, here.uri("status=never&wait=60"));
        server.addQueue(u"moves"_s, "palvestrin:" + link.toUtf8() + "?status=never&wait=60");
        QVERIFY(lead(here));
        const int first = server.submit(u"here"_s, ticket(49, 3000)); // more than the line keeps
        QTRY_COMPARE_WITH_TIMEOUT(server.job(first).message, QByteArray("Printing."), 10'000);
        const int job = server.submit(u"moves"_s, ticket(50));
        QTRY_VERIFY_WITH_TIMEOUT(server.job(job).message.contains("busy with another ticket"), 10'000);
        QVERIFY(lead(there));
        QCOMPARE(here.receive(sent(ticket(49, 3000)).size(), 10'000), sent(ticket(49, 3000)));
        QCOMPARE(there.receive(sent(ticket(50)).size(), 10'000), sent(ticket(50)));
        QCOMPARE(here.receive(1, 300), QByteArray());
    }
};

QTEST_GUILESS_MAIN(DevicesTest)
#include "devices_test.moc"
