#include "serversettings.h"

#include <QFile>
#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace {

struct ServerSetting
{
    QLatin1StringView file;
    QLatin1StringView name;
    QLatin1StringView value;
    QLatin1StringView without; ///< what happens
};

constexpr ServerSetting settings[] = {
    {"cupsd.conf"_L1, "DirtyCleanInterval"_L1, "0"_L1,
     "jobs of the last 30 seconds are lost when the server is killed"_L1},
    {"cupsd.conf"_L1, "MaxJobTime"_L1, "0"_L1,
     "jobs are cancelled that wait three hours for their printer"_L1},
    {"cups-files.conf"_L1, "SyncOnClose"_L1, "Yes"_L1, "jobs are lost when the power fails"_L1},
};

/// What the file sets; a null text when it sets nothing, and when it cannot be read.
QString valueIn(const ServerSetting &setting)
{
    QFile file(u"/etc/cups/"_s + setting.file);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QRegularExpression line(u"^\\s*%1\\s+(\\S+)"_s.arg(setting.name),
                                  QRegularExpression::MultilineOption |
                                      QRegularExpression::CaseInsensitiveOption);
    return line.match(QString::fromUtf8(file.readAll())).captured(1);
}

} // namespace

QString adviceOnServer()
{
    QString advice;
    for (const ServerSetting &setting : settings) {
        const bool isSet = valueIn(setting).compare(setting.value, Qt::CaseInsensitive) == 0;
        advice +=
            isSet ? u"/etc/cups/%1 has \"%2 %3\": good.\n"_s.arg(setting.file, setting.name, setting.value)
                  : u"Put \"%2 %3\" into /etc/cups/%1 and restart cups; without it, %4.\n"_s.arg(
                        setting.file, setting.name, setting.value, setting.without);
    }
    return advice;
}
