#pragma once

#include "command.h"
#include "filename.h"

#include <QByteArrayList>
#include <QStringList>

#include <utility>

/// The words behind a command, sorted by its tables.
///
/// Options may stand anywhere, but the word in the place of an argument that takes any text is that argument,
/// whatever it begins with: a password may begin with "-". Behind "--" no word is an option.
class CommandLine
{
public:
    enum Extent {
        Whole,
        Begun, ///< another word will follow
    };

    /// `words` are in the encoding of the locale; file names are bytes.
    CommandLine(const Command &command, const QByteArrayList &words, Extent extent = Whole);

    /// What is wrong, "" when nothing is: an option that the command does not have, a word that is missing or
    /// one too many.
    QString trouble() const;

    bool has(QAnyStringView option) const;
    /// What follows the option, "" without it; of several the last.
    QString value(QAnyStringView option) const;
    /// The same as the name of a file. Throws a CommandError (WrongUsage) when it is given and empty.
    FileName file(QAnyStringView option) const;

    /// The plain argument at `place`, "" behind the last one.
    QString argument(qsizetype place) const;
    QStringList arguments() const;
    FileName fileArgument(qsizetype place) const;

    /// What the next word would be, null when it may only be an option, or nothing.
    const Argument *expected() const;
    /// Whether a next word that begins with "-" would be an option.
    bool mayBeOption() const;

private:
    struct Given
    {
        const Option *option;
        QByteArray value;
    };

    void take(const QByteArray &word, bool isLast);
    void takeOption(const QByteArray &word);
    void complain(const QString &what);
    const Operand *nextOperand() const;
    const Option *optionFor(const QString &word) const;
    QString noSuchOption(const QString &word) const;
    QString wrongValue() const;
    QString missingOption() const;
    QString missingOperand() const;
    QString superfluousWords() const;
    const Given *last(QAnyStringView option) const;

    const Command &command;
    QList<Given> given;
    QByteArrayList plain;
    const Option *waiting = nullptr; ///< for the word that follows it
    bool onlyPlain = false;          ///< behind "--"
    QString firstTrouble;
};

/// "palvestrin config get [--file FILE] KEY", with the shortest form of each option.
QString usageLine(const Command &command, const QString &program);
/// How a list of commands shows it: "get KEY".
QString shortUsage(const Command &command);
/// "--file FILE", or "-o, --output FILE".
QString shownOption(const Option &option);
/// The options of a command, --help last.
QList<Option> allOptions(const Command &command);
