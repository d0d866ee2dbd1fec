// printrush: milliseconds from ticket to paper, with this backend and with CUPS's own socket backend: the
// median of single tickets, and of a rush of 200 to four printers the time of one. Then the KiB that a
// process of this backend takes at most in the first half of a rush, and in the second.

#include "printerprocess.h"
#include "printserver.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QTest>

#include <algorithm>
#include <array>
#include <cstdio>
#include <functional>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int printerCount = 4;
constexpr int singleTickets = 31;
constexpr int rushTickets = 200;
constexpr int patience = 120; ///< seconds for one ticket

class Shop
{
public:
    explicit Shop(const QByteArray &uriScheme) : scheme(uriScheme)
    {
        for (int place = 0; place < printerCount; ++place) {
            const QByteArray uri = scheme + "://127.0.0.1:" + QByteArray::number(printers[place].port());
            server.addQueue(queue(place), uri);
            print(place, number++);
        }
    }

    double single()
    {
        std::vector<double> times;
        for (int count = 0; count < singleTickets; ++count) {
            QElapsedTimer timer;
            timer.start();
            print(0, number++);
            times.push_back(double(timer.nsecsElapsed()) / 1e6);
        }
        std::ranges::sort(times);
        return times[times.size() / 2];
    }
    double rush()
    {
        QElapsedTimer timer;
        timer.start();
        for (const int each : submitRush())
            await(each % printerCount, each);
        return double(timer.nsecsElapsed()) / 1e6 / rushTickets;
    }
    /// In KiB, by the halves of a rush.
    std::array<int, 2> peaks()
    {
        std::array<int, 2> most{};
        const int first = number;
        const auto look = [&](int &peak) { peak = std::max(peak, server.peakOfBackends()); };
        const std::vector<int> tickets =
            submitRush([&] { look(most[number - first < rushTickets / 2 ? 0 : 1]); });
        for (const int each : tickets)
            await(each % printerCount, each, [&] { look(most[1]); });
        if (most[0] == 0 || most[1] == 0)
            qFatal("no backend was seen");
        return most;
    }

private:
    QString queue(int place) const { return QString::fromLatin1(scheme) + QString::number(place); }
    void print(int place, int ticketNumber)
    {
        server.submit(queue(place), ticket(ticketNumber));
        await(place, ticketNumber);
    }
    /// Calls `meanwhile` for each ticket.
    std::vector<int> submitRush(const std::function<void()> &meanwhile = [] {})
    {
        std::vector<int> tickets;
        for (int count = 0; count < rushTickets; ++count, ++number) {
            server.submit(queue(number % printerCount), ticket(number));
            tickets.push_back(number);
            meanwhile();
        }
        return tickets;
    }
    void await(
        int place, int ticketNumber, const std::function<void()> &meanwhile = [] {}) const
    {
        const QDeadlineTimer deadline(std::chrono::seconds{patience});
        while (printers[place].count(lastRow(ticketNumber)) == 0) {
            if (deadline.hasExpired())
                qFatal("ticket %d is not on paper after %d seconds", ticketNumber, patience);
            meanwhile();
            QTest::qSleep(1);
        }
    }

    const QByteArray scheme;
    PrintServer server;
    PrinterProcess printers[printerCount];
    int number = 0;
};

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    Shop theirs("socket");
    Shop ours("palvestrin");
    const double theirSingle = theirs.single();
    const double ourSingle = ours.single();
    const double theirRush = theirs.rush();
    const double ourRush = ours.rush();
    const std::array<int, 2> peaks = ours.peaks();
    std::printf("%.2f %.2f %.2f %.2f %d %d\n", ourSingle, theirSingle, ourRush, theirRush, peaks[0],
                peaks[1]);
    return 0;
}
