#include "serversettings.h"

#include "printqueues.h"

#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <limits>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double always = std::numeric_limits<double>::infinity();
/// Seconds; the backend looks for jobs that began so long ago.
constexpr double aDay = 24 * 60 * 60;

/// A line of the server's files. Times are in seconds; Yes is for ever, and No is none.
struct ServerSetting
{
    QLatin1StringView file;
    QLatin1StringView name;
    QLatin1StringView value; ///< that is good
    double least;
    double most;
    QLatin1StringView usual;   ///< without a line
    QLatin1StringView without; ///< what happens
};

constexpr ServerSetting settings[] = {
    {"cupsd.conf"_L1, "DirtyCleanInterval"_L1, "0"_L1, 0, 0, "30"_L1,
     "jobs of the last seconds, usually 30, are lost when the server is killed"_L1},
    {"cupsd.conf"_L1, "MaxJobTime"_L1, "0"_L1, 0, 0, "10800"_L1,
     "jobs are cancelled that wait long for their printer, usually three hours"_L1},
    {"cups-files.conf"_L1, "SyncOnClose"_L1, "Yes"_L1, 1, always, "No"_L1,
     "jobs are lost when the power fails"_L1},
    {"cupsd.conf"_L1, "PreserveJobHistory"_L1, "Yes"_L1, aDay, always, "Yes"_L1,
     "the server forgets what became of a job, and nobody can tell whether it was printed"_L1},
    {"cupsd.conf"_L1, "PreserveJobFiles"_L1, "86400"_L1, aDay, always, "86400"_L1,
     "a job whose backend was killed cannot be started again"_L1},
};

struct Unit
{
    QLatin1StringView letter;
    int seconds;
};

constexpr Unit units[] = {{""_L1, 1}, {"m"_L1, 60}, {"h"_L1, 3'600}, {"d"_L1, 86'400}, {"w"_L1, 604'800}};

bool isOneOf(std::initializer_list<QLatin1StringView> words, const QString &value)
{
    return std::ranges::any_of(
        words, [&](QLatin1StringView word) { return value.compare(word, Qt::CaseInsensitive) == 0; });
}

/// As the server reads it; empty when it does not, and goes by the line before.
std::optional<double> numberIn(const QString &value)
{
    if (isOneOf({"yes"_L1, "on"_L1, "true"_L1, "enabled"_L1}, value))
        return always;
    if (isOneOf({"no"_L1, "off"_L1, "false"_L1, "disabled"_L1}, value))
        return 0;
    static const QRegularExpression time(u"^(\\d+(?:\\.\\d*)?)([mhdw]?)$"_s,
                                         QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = time.match(value);
    if (!match.hasMatch())
        return {};
    const QString letter = match.captured(2);
    const auto *unit = std::ranges::find_if(
        units, [&](const Unit &each) { return letter.compare(each.letter, Qt::CaseInsensitive) == 0; });
    return match.captured(1).toDouble() * unit->seconds;
}

/// The last line that sets it counts; "" when there is none.
QString valueIn(const QString &text, const ServerSetting &setting)
{
    const QRegularExpression line(u"^[ \\t]*%1[ \\t]+([^#\\n]*[^#\\s])"_s.arg(setting.name),
                                  QRegularExpression::MultilineOption |
                                      QRegularExpression::CaseInsensitiveOption);
    QString value;
    for (const QRegularExpressionMatch &match : line.globalMatch(text)) {
        if (numberIn(match.captured(1)))
            value = match.captured(1);
    }
    return value;
}

bool isGood(const ServerSetting &setting, const QString &value)
{
    const double number = numberIn(value).value_or(-1);
    return number >= setting.least && number <= setting.most;
}

QString adviceOn(const ServerSetting &setting, const QString &path, const QString &value)
{
    if (value.isEmpty() && isGood(setting, setting.usual))
        return u"%1 leaves %2 at \"%3\": good.\n"_s.arg(path, setting.name, setting.usual);
    if (isGood(setting, value))
        return u"%1 has \"%2 %3\": good.\n"_s.arg(path, setting.name, value);
    const QString place = value.isEmpty() ? QString() : u", in place of \"%1\","_s.arg(value);
    return u"Put \"%1 %2\" into %3%4 and restart cups; without it, %5.\n"_s.arg(setting.name, setting.value,
                                                                                path, place, setting.without);
}

QString adviceOn(const ServerSetting &setting, const QString &folder)
{
    const QString path = folder + u'/' + setting.file;
    QFile file(path);
    if (!file.exists())
        return adviceOn(setting, path, {});
    if (!file.open(QIODevice::ReadOnly))
        return u"%1 cannot be read: %2. As root, look there for \"%3 %4\"; without it, %5.\n"_s.arg(
            path, file.errorString(), setting.name, setting.value, setting.without);
    return adviceOn(setting, path, valueIn(QString::fromUtf8(file.readAll()), setting));
}

QString namesOfAll()
{
    QString text;
    for (const ServerSetting &setting : settings)
        text += u"  %1: %2 %3\n"_s.arg(setting.file, setting.name, setting.value);
    return text;
}

} // namespace

QString adviceOnServer(const QString &server, const QString &folder)
{
    if (!isOnThisMachine(server))
        return u"The print server is %1; look there whether its files have these settings, which keep "
               "jobs:\n%2"_s.arg(server, namesOfAll());
    QString advice;
    for (const ServerSetting &setting : settings)
        advice += adviceOn(setting, folder);
    return advice;
}
