#pragma once

#include <QFile>
#include <QRegularExpression>
#include <QString>

/// Log lines with "[time]" for every time stamp that has exactly the form that the logger writes; anything
/// else stays, and so fails a comparison.
inline QString withoutTimes(QString lines)
{
    static const QRegularExpression stamp(
        QStringLiteral(R"(^\[[01]\d-[0-3]\d-\d{4} [0-2]\d:[0-5]\d:[0-6]\d:\d{3}\])"),
        QRegularExpression::MultilineOption);
    return lines.replace(stamp, QStringLiteral("[time]"));
}

/// The lines of a log file, without their times.
inline QString logText(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QStringLiteral("cannot open ") + path;
    return withoutTimes(QString::fromUtf8(file.readAll()));
}
