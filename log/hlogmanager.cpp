#include "hlogmanager.h"

#include "logger.h"

#include <QMutexLocker>

#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Keeps a logger that another one of its name has replaced. Never freed: its users may log until the very
/// end.
void keepUntilTheEnd(Logger *replaced)
{
    static QMutex mutex;
    static auto *const loggers = new std::vector<Logger *>;
    const QMutexLocker lock(&mutex);
    loggers->push_back(replaced);
}

} // namespace

HLogManager::HLogManager() = default;

HLogManager::~HLogManager()
{
    qDeleteAll(loggers);
}

void HLogManager::set(const QString &loggerArg, const QString &name)
{
    auto *made = new Logger(loggerArg);
    const QMutexLocker lock(&mutex);
    Logger *&entry = loggers[name.isEmpty() ? u"default"_s : name];
    if (entry)
        keepUntilTheEnd(entry);
    entry = made;
}

Logger *HLogManager::getLog(const QString &name)
{
    const QMutexLocker lock(&mutex);
    if (name.isEmpty())
        return loggers[u"default"_s]; // adds an empty entry when there is none
    return loggers.value(name);
}
