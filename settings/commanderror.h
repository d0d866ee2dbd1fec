#pragma once

#include "exitcode.h"
#include "filename.h"
#include "tokenizer.h"

#include <QString>
#include <QStringList>

#include <vector>

using libconfig::Position;

/// Why a command stops: one or more messages and the exit code. Thrown where the trouble is seen, printed in
/// one place (see command.h).
class CommandError
{
public:
    CommandError(ExitCode why, const QString &message) : exitCode(why) { add(message); }
    CommandError(ExitCode why, const FileName &file, const QString &message) : exitCode(why)
    {
        add(file.shown(), message);
    }
    CommandError(ExitCode why, const FileName &file, Position at, const QString &message) : exitCode(why)
    {
        add(file, at, message);
    }
    explicit CommandError(ExitCode why) : exitCode(why) {}

    void add(const FileName &file, Position at, const QString &message)
    {
        add(file.shown() + QStringLiteral(":%1:%2").arg(at.line).arg(at.column), message);
    }

    /// A message that belongs to no file.
    void add(const QString &message)
    {
        lines.push_back(QStringLiteral("palvestrin: error: ") + message);
        sentences += message.left(1).toUpper() + message.mid(1);
    }

    ExitCode code() const { return exitCode; }
    /// Whole lines of the form "file:line:column: error: what, and what instead", without line ends.
    const std::vector<QString> &messages() const { return lines; }
    /// The same for windows, which name no program and need not say "error": "file: what, and what instead".
    const QStringList &reasons() const { return sentences; }

private:
    void add(const QString &place, const QString &message)
    {
        lines.push_back(place + QStringLiteral(": error: ") + message);
        sentences += place + QStringLiteral(": ") + message;
    }

    ExitCode exitCode;
    std::vector<QString> lines;
    QStringList sentences;
};
