#pragma once

#include "job.h"

#include <QBuffer>
#include <QStringList>

#include <algorithm>
#include <vector>

/// Keeps every finding, in the order in which they came.
class CollectedFindings : public check::FindingSink
{
public:
    void take(const check::Finding &finding) override { list.push_back(finding); }

    std::vector<check::Finding> list;

    /// The ids of the findings of at least that severity, sorted.
    QStringList ids(check::Severity least = check::Severity::Warning) const
    {
        QStringList names;
        for (const check::Finding &finding : list) {
            if (finding.check->severity >= least)
                names += finding.check->id;
        }
        names.sort();
        return names;
    }
    /// The finding of that id at that place; null when there is none.
    const check::Finding *find(const QString &id, check::Place place) const
    {
        const auto found = std::ranges::find_if(list, [&](const check::Finding &finding) {
            return finding.check->id == id && finding.place == place;
        });
        return found == list.end() ? nullptr : &*found;
    }
    /// One a line, for the message of a test that fails.
    QString asText() const
    {
        QString text;
        for (const check::Finding &finding : list) {
            text += QStringLiteral("%1:%2 %3 [%4]\n")
                        .arg(finding.place.line)
                        .arg(finding.place.column)
                        .arg(finding.message, finding.check->id);
        }
        return text;
    }
};

/// What the check finds in a job.
inline CollectedFindings findingsOf(QIODevice &job, PVConfiguration &configuration)
{
    CollectedFindings findings;
    check::checkJob(job, configuration, findings);
    return findings;
}

inline CollectedFindings findingsOf(QByteArray job, PVConfiguration &configuration)
{
    QBuffer buffer(&job);
    buffer.open(QIODevice::ReadOnly);
    return findingsOf(buffer, configuration);
}
