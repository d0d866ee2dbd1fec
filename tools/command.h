#pragma once

#include "exitcode.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QLatin1StringView>
#include <QStringList>

#include <span>

/// One word that may follow `palvestrin`, or a command of it. A new command is one source file with one such
/// operation, and one row in the table of its program (palvestrin.cpp, config.cpp).
struct Command
{
    QLatin1StringView name;
    QLatin1StringView arguments; ///< as the usage line shows them
    QLatin1StringView summary;
    /// `arguments` holds what follows the command's name. Trouble is thrown as a CommandError.
    ExitCode (*run)(const QStringList &arguments);
};

/// Runs the command that `arguments` begin with; "--help" lists `commands`. `program` is what stands in front
/// of it on the command line. Throws a CommandError when there is no such command.
ExitCode runOneOf(std::span<const Command> commands, const QString &program, const QStringList &arguments);

/// The options and plain arguments of one command.
class CommandLine
{
public:
    /// `usage` is the line that "--help" shows first.
    CommandLine(const QString &usage, const QList<QCommandLineOption> &options);

    /// False when "--help" was asked for, and printed. Throws a CommandError when an option is unknown or the
    /// number of plain arguments is not between `least` and `most`.
    bool parse(const QStringList &arguments, qsizetype least, qsizetype most);

    bool has(const QString &option) const { return parser.isSet(option); }
    QString value(const QString &option) const { return parser.value(option); }
    /// The plain argument at `place`, "" behind the last one.
    QString argument(qsizetype place) const { return parser.positionalArguments().value(place); }

private:
    QString helpText() const;

    QString usage;
    QList<QCommandLineOption> options;
    QCommandLineParser parser;
};

/// Writes `text` to standard output in UTF-8, as it stands.
void printText(const QString &text);
/// Writes "palvestrin: note: `text`" to standard error.
void printNote(const QString &text);

/// All of `palvestrin`: `arguments` are the words behind the program's name. Prints what goes wrong.
ExitCode runPalvestrin(const QStringList &arguments);
