#pragma once

#include <QFile>
#include <QMutex>
#include <QString>
#include <QTextStream>

#include <memory>

/// Writes time-stamped lines to the one log file that the configuration names:
///
///     [03-07-2007 18:42:05:093] ERROR: relation "orders" does not exist
///
/// A log file that cannot be opened is reported in one line on standard output; after that the logger stays
/// usable and its lines are lost without a word.
///
/// Threads may share a logger: every line is written whole, in whatever order they come. Two loggers on one
/// file do not wait for each other.
class Logger
{
public:
    /// In rising order of weight.
    enum Level : int { DEBUG = 0, INFO = 1, WARNING = 2, ERROR = 3, FATAL = 4 };

    /// Opens the log file and writes "Start Logger" at level DEBUG. The name is not used: every logger reads
    /// the same keys, palvestrin.logger.level, .basedir, .filename and .type.
    explicit Logger(const QString &name);
    Logger(const Logger &) = delete;
    Logger &operator=(const Logger &) = delete;
    ~Logger();

    /// The least level that is written, by name in any case. An unknown name means DEBUG.
    void setLevel(const QString &value);
    /// Opens the file: "APPEND" behind what it holds, "OVERWRITE" emptied first, in any case. Any other value
    /// leaves it as it is, closed when the logger is new. A file that is open already cannot be opened again:
    /// that is reported like any other failure, and the file stays open as it was.
    void setType(const QString &value);

    /// Writes one line, unless `lvl` is below the logger's level. The system has the line when this returns:
    /// it is not lost if the process dies.
    void write(Level lvl, const QString &message);
    void debug(const QString &message);
    void info(const QString &message);
    void warning(const QString &message);
    void error(const QString &message);
    void fatal(const QString &message);

private:
    QMutex mutex; ///< guards everything below
    std::unique_ptr<QFile> file;
    std::unique_ptr<QTextStream> stream;
    Level level = DEBUG;
    QString fileName;
};
