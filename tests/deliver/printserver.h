#pragma once

#include "scratchfolder.h"

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QStringList>

#include <memory>

/// What the print server says of a job.
struct JobInfo
{
    enum State {
        Missing = 0,
        Pending = 3,
        Held = 4,
        Processing = 5,
        Stopped = 6,
        Canceled = 7,
        Aborted = 8,
        Completed = 9
    };

    int state = Missing;
    int sheets = 0; ///< that are on paper
    QByteArray message;
    QByteArray reason;
};

/// A print server of the test's own, on a socket in a temporary folder, with the backend that was built and
/// with the system's other ones. It keeps jobs over a crash. It runs as long as this lives, and dies with the
/// test.
///
/// It runs as root, as print servers do.
class PrintServer
{
public:
    PrintServer();
    ~PrintServer();
    PrintServer(const PrintServer &) = delete;
    PrintServer &operator=(const PrintServer &) = delete;

    /// With its spool put right, as the package has it start; or as others may start it.
    enum class Spool { Tidied, AsItIs };
    void start(Spool spool = Spool::Tidied);
    /// In order, as when the machine is shut down.
    void stop();
    /// As a power cut would.
    void kill();
    qint64 process() const { return server->processId(); }
    QString folder() const { return scratch.path(); }
    QString socket() const { return scratch.path(QStringLiteral("sock")); }
    /// Of 127.0.0.1, for other print servers.
    int port() const { return tcpPort; }
    /// The variables with which clients find it.
    QStringList environment() const;

    /// Words behind the name, the device and the PPD file or model are for lpadmin.
    void addQueue(const QString &name, const QByteArray &uri, const QStringList &words = {});
    /// Runs a program of the print server's, and returns what it prints.
    QByteArray run(const QString &program, const QStringList &words) const;
    /// The number of the job, 0 when the server did not take it.
    int submit(const QString &queue, const QByteArray &content, const QStringList &words = {}) const;
    JobInfo job(int number) const;
    /// Waits until the job is in one of the states, and returns what is known then.
    JobInfo awaitState(int number, std::initializer_list<int> states, int seconds = 30) const;
    /// The reasons that the server shows for the state of a queue, between commas.
    QByteArray reasons(const QString &queue) const;
    void release(int number) const;
    QByteArray errorLog() const { return scratch.read(QStringLiteral("error_log")); }
    /// What the log says of one job.
    QByteArray logOf(int job) const;
    /// The numbers of the processes of the backend that run now.
    QList<qint64> backends() const;
    /// What the largest of them ever took, in KiB.
    int peakOfBackends() const;

private:
    void linkFiles() const;
    void writeConfiguration() const;

    const ScratchFolder scratch;
    const int tcpPort;
    std::unique_ptr<QProcess> server;
};
