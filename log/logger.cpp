#include "logger.h"

#include "pvconfiguration.h"

#include <QDateTime>

#include <algorithm>
#include <array>
#include <iostream>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Indexed by Logger::Level.
constexpr std::array levelNames = {"DEBUG"_L1, "INFO"_L1, "WARNING"_L1, "ERROR"_L1, "FATAL"_L1};

QString setting(const QString &key)
{
    return SyncSingleton<PVConfiguration>::instance()->getStrValue(key);
}

} // namespace

Logger::Logger(const QString & /*name*/)
{
    setLevel(setting(u"palvestrin.logger.level"_s));
    fileName = setting(u"palvestrin.logger.basedir"_s) + u'/' + setting(u"palvestrin.logger.filename"_s);
    file = std::make_unique<QFile>(fileName);
    setType(setting(u"palvestrin.logger.type"_s));
    stream = std::make_unique<QTextStream>(file.get());
    write(DEBUG, u"Start Logger"_s);
}

Logger::~Logger()
{
    file->close();
}

void Logger::setLevel(const QString &value)
{
    const auto found = std::find(levelNames.begin(), levelNames.end(), value.toUpper());
    level = found == levelNames.end() ? DEBUG : static_cast<Level>(found - levelNames.begin());
}

void Logger::setType(const QString &value)
{
    const QString type = value.toUpper();
    QIODevice::OpenMode mode;
    if (type == "APPEND"_L1) {
        mode = QIODevice::Append; // alone is enough: it implies writing
    } else if (type == "OVERWRITE"_L1) {
        mode = QIODevice::WriteOnly;
    } else {
        return;
    }
    // Asked first because the toolkit warns on standard error about opening twice.
    if (file->isOpen() || !file->open(mode))
        std::cout << "Error in the method Logger::setType(" << qPrintable(value) << ")" << std::endl;
}

void Logger::write(Level lvl, const QString &message)
{
    // The toolkit warns on standard error about writing to a closed file.
    if (level > lvl || !file->isOpen())
        return;
    *stream << '[' << QDateTime::currentDateTime().toString(u"MM-dd-yyyy hh:mm:ss:zzz"_s) << "] "
            << levelNames[static_cast<std::size_t>(lvl)] << ": " << message << '\n';
    stream->flush();
    // A stream that failed once, on a full disk for instance, would keep every later line in memory.
    stream->resetStatus();
}

void Logger::debug(const QString &message)
{
    write(DEBUG, message);
}

void Logger::info(const QString &message)
{
    write(INFO, message);
}

void Logger::warning(const QString &message)
{
    write(WARNING, message);
}

void Logger::error(const QString &message)
{
    write(ERROR, message);
}

void Logger::fatal(const QString &message)
{
    write(FATAL, message);
}
