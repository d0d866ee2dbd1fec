#pragma once

#include <QByteArrayList>
#include <QString>

#include <functional>
#include <sys/types.h>
#include <utility>

/// Another program, to be run.
struct ChildProgram
{
    QString path;
    QByteArrayList arguments; ///< as the system has them
    /// Variables that differ from the environment of this program, by name.
    QList<std::pair<QByteArray, QByteArray>> environment = {};
    int input = -1;            ///< the descriptor of its standard input; that of this program when negative
    bool isOutputHeard = true; ///< by who hears it; otherwise its errors alone are
};

/// Starts the program, which writes where this one does. Throws a CommandError (NotInstalled) when it cannot
/// be started.
pid_t startChild(const ChildProgram &program);
/// Waits for its end. Returns its exit status. Throws a CommandError (Unreadable) that calls it `name` when a
/// signal ended it.
int waitForChild(pid_t child, const QString &name);

/// Starts the program and waits for it. `hear` gets each line that it writes to standard error and, where
/// that is heard, to standard output. Returns its exit status. Throws as the two above.
int runChild(const ChildProgram &program, const std::function<void(const QByteArray &)> &hear);

/// While it lives, the signals by which people and systems end a program wait: what must be cleared away is
/// cleared away first. A child does not inherit that.
class HeldSignals
{
public:
    HeldSignals();
    ~HeldSignals();
    HeldSignals(const HeldSignals &) = delete;
    HeldSignals &operator=(const HeldSignals &) = delete;
};
