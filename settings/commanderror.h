#pragma once

#include "exitcode.h"
#include "filename.h"
#include "tokenizer.h"

#include <QString>

#include <vector>

using libconfig::Position;

/// Why a command stops: one or more messages and the exit code. Thrown where the trouble is seen, printed in
/// one place (see command.h).
class CommandError
{
public:
    CommandError(ExitCode why, const QString &message)
        : exitCode(why), lines{errorLine(QStringLiteral("palvestrin"), message)}
    {
    }
    CommandError(ExitCode why, const FileName &file, const QString &message)
        : exitCode(why), lines{errorLine(file.shown(), message)}
    {
    }
    CommandError(ExitCode why, const FileName &file, Position at, const QString &message) : exitCode(why)
    {
        add(file, at, message);
    }
    explicit CommandError(ExitCode why) : exitCode(why) {}

    void add(const FileName &file, Position at, const QString &message)
    {
        const QString place = QStringLiteral(":%1:%2").arg(at.line).arg(at.column);
        lines.push_back(errorLine(file.shown() + place, message));
    }

    /// A message that belongs to no file.
    void add(const QString &message) { lines.push_back(errorLine(QStringLiteral("palvestrin"), message)); }

    ExitCode code() const { return exitCode; }
    /// Whole lines of the form "file:line:column: error: what, and what instead", without line ends.
    const std::vector<QString> &messages() const { return lines; }

private:
    static QString errorLine(const QString &place, const QString &message)
    {
        return place + QStringLiteral(": error: ") + message;
    }

    ExitCode exitCode;
    std::vector<QString> lines;
};
