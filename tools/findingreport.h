#pragma once

#include "commandline.h"
#include "findinglist.h"

#include <QFile>
#include <QJsonArray>

#include <functional>

/// Checks one open file.
using Check = std::function<void(QFile &file, check::FindingSink &sink)>;

/// Shows what is found in one file after another, as the command line asks, and counts it.
class FindingReport
{
public:
    /// `line` must outlive this.
    explicit FindingReport(const CommandLine &commandLine) : line(commandLine) {}

    /// Opens and checks a file, and shows the findings. A file that cannot be read is told of, and the next
    /// one may follow.
    void add(const FileName &name, const Check &check);
    /// All files have been added: shows the summary, and returns how the command ends.
    ExitCode end();

private:
    void checkFile(const FileName &name, const Check &check);
    void show(const FindingList &list);
    QString summary() const;
    ExitCode exitCode() const;

    const CommandLine &line;
    QJsonArray objects;
    qsizetype errors = 0;
    qsizetype warnings = 0;
    bool isUnreadable = false; ///< whether a file could not be read
};

// The options that it looks at.

inline constexpr Option reportOptions[] = {
    {QLatin1StringView("json"), QLatin1StringView("Print one array of objects, in UTF-8.")},
    {QLatin1StringView("quiet"), QLatin1StringView("Print nothing; the exit status tells.")},
    {QLatin1StringView("verbose"),
     QLatin1StringView("Print notes, too: what has no effect, or is so by design.")},
    {QLatin1StringView("all"),
     QLatin1StringView("Print all findings, not just the first 100 of each check.")},
};
