#pragma once

#include "printerprocess.h"
#include "printserver.h"

#include <QDeadlineTimer>
#include <QTest>

/// A test of the backend under a print server of its own, which has no jobs when a case begins.
class PrinterTest : public QObject
{
    Q_OBJECT

protected:
    PrintServer server;

    /// A queue of that name for the printer.
    QString queueFor(const PrinterProcess &printer, const QByteArray &options = "wait=2")
    {
        const QString name = QStringLiteral("queue%1").arg(printer.port());
        server.addQueue(name, printer.uri(options));
        return name;
    }
    /// Prints a ticket, so that the printer is known.
    void acquaint(const QString &queue)
    {
        const int job = server.submit(queue, ticket(++number));
        QCOMPARE(server.awaitState(job, {JobInfo::Completed}).state, int(JobInfo::Completed));
    }
    /// Makes the class where there is none.
    void addToClass(const QString &name, const QString &queue)
    {
        server.run(QStringLiteral("lpadmin"), {QStringLiteral("-p"), queue, QStringLiteral("-c"), name});
        for (const QString &command : {QStringLiteral("cupsenable"), QStringLiteral("cupsaccept")})
            server.run(command, {name});
    }
    /// Waits until no backend runs, be it for a moment: the next one may begin at once.
    void awaitLull() const
    {
        const QDeadlineTimer patience(15'000);
        while (!server.backends().isEmpty() && !patience.hasExpired())
            QTest::qSleep(10);
        QVERIFY(!patience.hasExpired());
    }
    static bool isWhole(const PrinterProcess &printer, int ticket)
    {
        return printer.count(firstRow(ticket)) == 1 && printer.count(lastRow(ticket)) == 1;
    }

private Q_SLOTS:
    void cleanup() { server.run(QStringLiteral("cancel"), {QStringLiteral("-a"), QStringLiteral("-x")}); }

private:
    int number = 100;
};
