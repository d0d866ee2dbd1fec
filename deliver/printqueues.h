#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QList>
#include <QString>

#include <optional>

/// What people and commands ask of the print server: which printers it has, and what becomes of a job. The
/// server is the one that its own commands talk to. Trouble is told by `serverTrouble()`.

/// The host of the server, or the path of its socket.
QString serverName();
/// Whether the server of that name runs here, and its files are those of this machine.
bool isOnThisMachine(const QString &server);

struct PrintQueue
{
    QString name;
    QString model;   ///< "Palvestrin 80mm, 1.0"
    QString address; ///< the URI of its device; "" when the server keeps it back
    QString state;   ///< "idle", "printing" or "stopped"
    QString message;
    QStringList reasons; ///< "media-low-warning"
    bool isAccepting;    ///< jobs

    /// What the printer says of itself, sentences: "The paper is nearly out."
    QStringList troubles() const;
};

struct PrintJob
{
    enum class State { Waiting, Printing, Held, Printed, NotConfirmed, Abandoned, Failed, Gone };

    State state = State::Gone;
    QString message; ///< of the backend
};

/// The name of a queue for a printer that people call `name`: queues have no blanks and no slashes in theirs.
QString queueName(const QString &name);

/// By name. Empty when the server does not answer.
std::optional<QList<PrintQueue>> printQueues();
/// Hands the data to the queue as they are, to be printed `copies` times. Returns the number of the job;
/// empty when the server does not take it; why is told by `trouble`.
std::optional<int> submitJob(const QString &queue, const QString &title, QIODevice &data, int copies,
                             QString &trouble);
PrintJob printJob(int number);
/// What the server, or the way to it, answered last; for people.
QString serverTrouble();

/// The profile of a model of ours, "line" for none; "" for a model of others.
QString profileOfModel(const QString &model);
/// The name of the model for a profile or for "line", as it stands in its file.
QString modelFile(const QString &profile);
