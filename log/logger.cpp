#include "logger.h"

#include "applicationkeys.h"
#include "pvconfiguration.h"

#include <QDateTime>
#include <QMutexLocker>

#include <algorithm>
#include <iostream>

using namespace Qt::Literals::StringLiterals;

namespace {

QString setting(const QString &key)
{
    return SyncSingleton<PVConfiguration>::instance()->getStrValue(key);
}

} // namespace

Logger::Logger(const QString & /*name*/)
{
    setLevel(setting(applicationkey::loggerLevel));
    fileName = setting(applicationkey::loggerBaseDir) + u'/' + setting(applicationkey::loggerFileName);
    file = std::make_unique<QFile>(fileName);
    setType(setting(applicationkey::loggerType));
    stream = std::make_unique<QTextStream>(file.get());
    write(DEBUG, u"Start Logger"_s);
}

Logger::~Logger()
{
    file->close();
}

void Logger::setLevel(const QString &value)
{
    const auto found = std::ranges::find(vocabulary::logLevels, value.toUpper());
    const bool isKnown = found != std::end(vocabulary::logLevels);
    const QMutexLocker lock(&mutex);
    level = isKnown ? static_cast<Level>(found - std::begin(vocabulary::logLevels)) : DEBUG;
}

void Logger::setType(const QString &value)
{
    const QString type = value.toUpper();
    QIODevice::OpenMode mode;
    if (type == vocabulary::logAppend) {
        mode = QIODevice::Append; // alone is enough: it implies writing
    } else if (type == vocabulary::logOverwrite) {
        mode = QIODevice::WriteOnly;
    } else {
        return;
    }
    const QMutexLocker lock(&mutex);
    // Asked first because the toolkit warns on standard error about opening twice.
    if (file->isOpen() || !file->open(mode))
        std::cout << "Error in the method Logger::setType(" << qPrintable(value) << ")" << std::endl;
}

void Logger::write(Level lvl, const QString &message)
{
    const QMutexLocker lock(&mutex);
    // The toolkit warns on standard error about writing to a closed file.
    if (level > lvl || !file->isOpen())
        return;
    *stream << '[' << QDateTime::currentDateTime().toString(u"MM-dd-yyyy hh:mm:ss:zzz"_s) << "] "
            << vocabulary::logLevels[lvl] << ": " << message << '\n';
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
