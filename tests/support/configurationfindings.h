#pragma once

#include "configuration.h"

#include <QBuffer>
#include <QStringList>

#include <algorithm>
#include <vector>

/// What the check finds in a configuration.
class ConfigurationFindings : public check::FindingSink
{
public:
    explicit ConfigurationFindings(QByteArray content, const check::Surroundings *surroundings = nullptr)
    {
        QBuffer buffer(&content);
        buffer.open(QIODevice::ReadOnly);
        check::checkConfiguration(buffer, *this, surroundings);
    }

    void take(const check::Finding &finding) override
    {
        const auto behind = std::ranges::upper_bound(list, finding.place, {}, &check::Finding::place);
        list.insert(behind, finding);
    }

    /// Whether there is anything but notes.
    bool areSerious() const
    {
        return std::ranges::any_of(list, [](const check::Finding &finding) {
            return finding.check->severity > check::Severity::Note;
        });
    }

    /// One a line, "LINE:COLUMN: SEVERITY: MESSAGE; HINT [ID]", in the order of their places.
    QByteArray asText(check::Severity least = check::Severity::Note) const
    {
        QString text;
        for (const check::Finding &finding : list) {
            if (finding.check->severity >= least)
                text += lineOf(finding);
        }
        return text.toUtf8();
    }

    std::vector<check::Finding> list; ///< by place

private:
    static QString lineOf(const check::Finding &finding)
    {
        static const QStringList words{QStringLiteral("note"), QStringLiteral("warning"),
                                       QStringLiteral("error")};
        const QString hint = finding.hint.isEmpty() ? QString() : QStringLiteral("; ") + finding.hint;
        return QStringLiteral("%1:%2: %3: ")
                   .arg(QString::number(finding.place.line), QString::number(finding.place.column),
                        words[int(finding.check->severity)]) +
               finding.message + hint + QStringLiteral(" [") + finding.check->id + QStringLiteral("]\n");
    }
};
