#pragma once

#include "exitcode.h"

#include <QLatin1StringView>
#include <QList>
#include <QString>

#include <span>

/// The commands of `palvestrin` as tables. Name, options and plain arguments of a command stand once;
/// dispatch, parse, usage errors, "--help", the Tab key and the tests read them here.

class CommandLine;

/// A word that the Tab key puts in the place of one that was begun.
struct Offer
{
    QString word;
    QString meaning;
};

/// A word that whoever types fills in.
struct Argument
{
    QLatin1StringView name; ///< as the usage line shows it: "FILE"; "xml|cfg" takes one of these words
    /// What fits behind the words of `before` and in the place of `begun`; null where nobody can guess.
    QList<Offer> (*offers)(const CommandLine &before, const QString &begun) = nullptr;
    bool isAnyText = false; ///< takes a word that looks like an option, too
};

struct Option
{
    QLatin1StringView name; ///< behind two dashes
    QLatin1StringView meaning;
    const Argument *argument = nullptr; ///< what follows it
    bool isRequired = false;
    char letter = 0; ///< the short form, behind one dash
};

/// A plain argument. Only the last one of a command may be missing or come more than once.
struct Operand
{
    enum Count { One, AtMostOne, OneOrMore, Any };

    const Argument *argument;
    Count count = One;
};

/// One word that may follow `palvestrin` or a command of it: either has `run`, or `commands` of its own. Each
/// stands in a source file of its own, and as one row in the table of the command that it follows
/// (palvestrin.cpp, config.cpp).
struct Command
{
    QLatin1StringView name;
    QLatin1StringView summary = {};
    std::span<const Operand> operands = {};
    std::span<const Option> options = {};
    /// Trouble is thrown as a CommandError.
    ExitCode (*run)(const CommandLine &line) = nullptr;
    std::span<const Command *const> commands = {};
    /// That of `commands` which runs where none is named; null where one must be.
    const Command *usual = nullptr;
};

/// Every command has it.
inline constexpr Option helpOption{.name = QLatin1StringView("help"),
                                   .meaning = QLatin1StringView("Tell about the command."),
                                   .letter = 'h'};

/// For the Tab key: the name of a file fits.
QList<Offer> offerFiles(const CommandLine &before, const QString &begun);

inline constexpr Argument fileArgument{QLatin1StringView("FILE"), offerFiles};
