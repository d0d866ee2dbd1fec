#pragma once

#include <QMap>
#include <QMutex>
#include <QString>

class Logger;

/// The process's loggers by name. Reached through `SyncSingleton<HLogManager>::instance()`. Threads may share
/// it.
class HLogManager
{
public:
    HLogManager();
    HLogManager(const HLogManager &) = delete;
    HLogManager &operator=(const HLogManager &) = delete;
    /// Deletes the loggers that it holds.
    ~HLogManager();

    /// Makes a `Logger(loggerArg)` and stores it under `name`; "" means "default". A logger that stood there
    /// is no longer found but lives on, open, until the process ends: others may hold it.
    void set(const QString &loggerArg, const QString &name);
    /// The logger of that name, or null; "" means "default". The manager keeps ownership.
    Logger *getLog(const QString &name);

private:
    QMutex mutex; ///< guards the names
    QMap<QString, Logger *> loggers;
};
