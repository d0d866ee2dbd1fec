#include "hlogmanager.h"

#include "logger.h"

#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Loggers that another one of their name has replaced. Never freed: their users may log until the very end.
std::vector<Logger *> &replacedLoggers()
{
    static auto *const loggers = new std::vector<Logger *>;
    return *loggers;
}

} // namespace

HLogManager::HLogManager() = default;

HLogManager::~HLogManager()
{
    qDeleteAll(loggers);
}

void HLogManager::set(const QString &loggerArg, const QString &name)
{
    Logger *&entry = loggers[name.isEmpty() ? u"default"_s : name];
    if (entry)
        replacedLoggers().push_back(entry);
    entry = new Logger(loggerArg);
}

Logger *HLogManager::getLog(const QString &name)
{
    if (name.isEmpty())
        return loggers[u"default"_s]; // adds an empty entry when there is none
    return loggers.value(name);
}
