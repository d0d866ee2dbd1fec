#pragma once

#include <QByteArray>
#include <QString>

/// A PostgreSQL server of the test's own, on a Unix socket in a temporary folder, with one user who needs a
/// password. It runs as long as this lives.
///
/// A guard process outside the test's process group starts and stops the server and removes the folder. It
/// watches a socket to the test and so cleans up too when the test crashes or is killed. PostgreSQL refuses
/// to run as root, so a test that does hands the server to the user `postgres`.
class TemporaryPostgres
{
public:
    /// Starts the server; ends the test program with a message when that fails.
    TemporaryPostgres();
    TemporaryPostgres(const TemporaryPostgres &) = delete;
    TemporaryPostgres &operator=(const TemporaryPostgres &) = delete;
    ~TemporaryPostgres();

    /// Stops the server as a power cut would, without a word to its clients.
    void stop() { command("stop"); }
    void start() { command("start"); }

    QString database() const { return QStringLiteral("postgres"); }
    QString user() const { return QStringLiteral("shop"); }
    QString password() const { return QStringLiteral("s3cret"); }
    /// The folder of the socket, which stands for the host.
    QString host() const { return QString::fromUtf8(folder); }
    /// The block `db` of a configuration that leads here.
    QByteArray configuration() const;

private:
    void command(const QByteArray &word);
    QByteArray readLine() const;

    int guard = -1;
    QByteArray folder;
};
