// printrush: milliseconds from ticket to paper, with CUPS's own socket backend and with this one: the median
// of single tickets, and of a rush of 200 to four printers the time of one.

#include "printerprocess.h"
#include "printserver.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTest>

#include <algorithm>
#include <cstdio>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int printerCount = 4;
constexpr int singleTickets = 31;
constexpr int rushTickets = 200;

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
        const int first = number;
        for (; number < first + rushTickets; ++number)
            server.submit(queue(number % printerCount), ticket(number));
        for (int each = first; each < number; ++each)
            await(each % printerCount, each);
        return double(timer.nsecsElapsed()) / 1e6 / rushTickets;
    }

private:
    QString queue(int place) const { return QString::fromLatin1(scheme) + QString::number(place); }
    void print(int place, int ticketNumber)
    {
        server.submit(queue(place), ticket(ticketNumber));
        await(place, ticketNumber);
    }
    void await(int place, int ticketNumber) const
    {
        while (printers[place].count(lastRow(ticketNumber)) == 0)
            QTest::qSleep(1);
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
    std::printf("%.2f %.2f %.2f %.2f\n", ourSingle, theirSingle, ourRush, theirRush);
    return 0;
}
