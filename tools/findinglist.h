#pragma once

#include "finding.h"

#include <QJsonArray>
#include <QString>

#include <map>
#include <vector>

/// The findings of one file, as `palvestrin check` shows them: sorted by place, and of each check no more
/// than anybody reads, so that a long file with one mistake in every row costs no memory.
class FindingList : public check::FindingSink
{
public:
    /// Keeps findings of at least the severity `least`, up to `mostOfACheck` of each check, and counts the
    /// others. `file` is the name that is shown.
    FindingList(const QString &file, check::Severity least, qsizetype mostOfACheck);

    void take(const check::Finding &finding) override;
    bool wants(check::Severity severity) const override { return severity >= least; }

    /// How many were found, kept or not.
    qsizetype count(check::Severity severity) const;

    /// One finding a line: "FILE:LINE:COLUMN: warning: MESSAGE; HINT [ID]". No character of it commands a
    /// terminal, whatever the file holds.
    QString asText() const;
    /// One object a finding: file, line, column, severity, id, message, hint.
    QJsonArray asJson() const;
    /// A line for each check of which some are not kept.
    QStringList remarks() const;

private:
    QString file;
    check::Severity least;
    qsizetype mostOfACheck;
    std::vector<check::Finding> findings;            ///< those that are kept, by place
    std::map<const check::Check *, qsizetype> found; ///< by row of the table
};

/// "error", "warning" or "note".
QString wordFor(check::Severity severity);
