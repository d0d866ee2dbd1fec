#include "commandline.h"

#include "commanderror.h"
#include "console.h"
#include "spelling.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// "the file" for FILE, "xml or cfg" for xml|cfg.
QString inWords(const Argument &argument)
{
    const QString name = argument.name;
    return name.contains(u'|') ? QString(name).replace(u"|"_s, u" or "_s) : "the "_L1 + name.toLower();
}

QString dashed(const Option &option)
{
    return "--"_L1 + option.name;
}

bool mayBeMissing(const Operand &operand)
{
    return operand.count == Operand::AtMostOne || operand.count == Operand::Any;
}

bool mayRepeat(const Operand &operand)
{
    return operand.count == Operand::OneOrMore || operand.count == Operand::Any;
}

/// In the shortest form.
QString shownInUsage(const Option &option)
{
    const QString name = option.letter ? u"-%1"_s.arg(QLatin1Char(option.letter)) : dashed(option);
    const QString whole = option.argument ? name + u' ' + option.argument->name : name;
    return option.isRequired ? whole : u'[' + whole + u']';
}

QString shownOperand(const Operand &operand)
{
    const QString name = operand.argument->name + (mayRepeat(operand) ? "..."_L1 : ""_L1);
    return mayBeMissing(operand) ? u'[' + name + u']' : name;
}

} // namespace

CommandLine::CommandLine(const Command &ofCommand, const QByteArrayList &words, Extent extent)
    : command(ofCommand)
{
    for (qsizetype i = 0; i < words.size(); ++i)
        take(words[i], extent == Whole && i + 1 == words.size());
}

void CommandLine::take(const QByteArray &word, bool isLast)
{
    const bool isText = nextOperand() && nextOperand()->argument->isAnyText;
    if (waiting)
        given.push_back({std::exchange(waiting, nullptr), word});
    else if (!onlyPlain && word == "--" && !(isText && isLast))
        onlyPlain = true;
    else if (mayBeOption() && word.size() > 1 && word.startsWith('-'))
        takeOption(word);
    else
        plain += word;
}

void CommandLine::takeOption(const QByteArray &word)
{
    const qsizetype equals = word.indexOf('=');
    const QString name = fromTerminal(word.first(equals < 0 ? word.size() : equals));
    const Option *option = optionFor(name);
    if (!option)
        complain(noSuchOption(name));
    else if (equals < 0 && option->argument)
        waiting = option;
    else if (equals >= 0 && !option->argument)
        complain(dashed(*option) + " takes no value"_L1);
    else
        given.push_back({option, equals < 0 ? QByteArray() : word.sliced(equals + 1)});
}

void CommandLine::complain(const QString &what)
{
    if (firstTrouble.isEmpty())
        firstTrouble = what;
}

const Operand *CommandLine::nextOperand() const
{
    const auto place = size_t(plain.size());
    if (place < command.operands.size())
        return &command.operands[place];
    const bool repeats = !command.operands.empty() && mayRepeat(command.operands.back());
    return repeats ? &command.operands.back() : nullptr;
}

const Argument *CommandLine::expected() const
{
    if (waiting)
        return waiting->argument;
    const Operand *operand = nextOperand();
    return operand ? operand->argument : nullptr;
}

bool CommandLine::mayBeOption() const
{
    return !onlyPlain && !waiting && !(expected() && expected()->isAnyText);
}

const Option *CommandLine::optionFor(const QString &word) const
{
    const auto isIt = [&word](const Option &option) {
        return word == dashed(option) || (option.letter && word == u"-%1"_s.arg(QLatin1Char(option.letter)));
    };
    const auto option = std::ranges::find_if(command.options, isIt);
    if (option != command.options.end())
        return &*option;
    return isIt(helpOption) ? &helpOption : nullptr;
}

QString CommandLine::noSuchOption(const QString &word) const
{
    QStringList known;
    for (const Option &option : allOptions(command))
        known += dashed(option);
    const QString meant = nearestWord(word, known);
    return u"no option \"%1\""_s.arg(word) +
           (meant.isEmpty() ? QString() : u"; did you mean \"%1\"?"_s.arg(meant));
}

QString CommandLine::trouble() const
{
    if (!firstTrouble.isEmpty())
        return firstTrouble;
    if (waiting)
        return u"%1 is missing behind %2"_s.arg(inWords(*waiting->argument), dashed(*waiting));
    for (const QString &what : {wrongValue(), missingOption(), missingOperand()}) {
        if (!what.isEmpty())
            return what;
    }
    return superfluousWords();
}

/// An option that takes one of a few words got another.
QString CommandLine::wrongValue() const
{
    for (const Given &one : given) {
        if (!one.option->argument || !one.option->argument->name.contains(u'|'))
            continue;
        const QString value = fromTerminal(one.value);
        if (!QString(one.option->argument->name).split(u'|').contains(value))
            return u"no \"%1\" for %2; give %3"_s.arg(value, dashed(*one.option),
                                                      inWords(*one.option->argument));
    }
    return {};
}

QString CommandLine::missingOption() const
{
    const auto isMissing = [this](const Option &option) { return option.isRequired && !last(option.name); };
    const auto option = std::ranges::find_if(command.options, isMissing);
    return option == command.options.end() ? QString() : shownOption(*option) + " is missing"_L1;
}

QString CommandLine::missingOperand() const
{
    if (size_t(plain.size()) >= command.operands.size() || mayBeMissing(*nextOperand()))
        return {};
    return inWords(*nextOperand()->argument) + " is missing"_L1;
}

QString CommandLine::superfluousWords() const
{
    if (nextOperand() || size_t(plain.size()) == command.operands.size())
        return {};
    QStringList words;
    for (const QByteArray &word : plain.sliced(qsizetype(command.operands.size())))
        words += u'"' + fromTerminal(word) + u'"';
    return words.size() == 1 ? "one argument too many: "_L1 + words.first()
                             : u"%1 arguments too many: "_s.arg(words.size()) + words.join(u' ');
}

const CommandLine::Given *CommandLine::last(QAnyStringView option) const
{
    const auto found = std::find_if(given.rbegin(), given.rend(),
                                    [&](const Given &one) { return option == one.option->name; });
    return found == given.rend() ? nullptr : &*found;
}

bool CommandLine::has(QAnyStringView option) const
{
    return last(option);
}

QString CommandLine::value(QAnyStringView option) const
{
    const Given *found = last(option);
    return found ? fromTerminal(found->value) : QString();
}

FileName CommandLine::file(QAnyStringView option) const
{
    const Given *found = last(option);
    if (found && found->value.isEmpty())
        throw CommandError(ExitCode::WrongUsage,
                           dashed(*found->option) + " is empty; give the name of a file"_L1);
    return found ? FileName(found->value) : FileName();
}

QString CommandLine::argument(qsizetype place) const
{
    return fromTerminal(plain.value(place));
}

QStringList CommandLine::arguments() const
{
    QStringList words;
    for (const QByteArray &word : plain)
        words += fromTerminal(word);
    return words;
}

FileName CommandLine::fileArgument(qsizetype place) const
{
    if (plain.value(place).isEmpty())
        throw CommandError(ExitCode::WrongUsage, u"the name of the file is empty; give one"_s);
    return FileName(plain.value(place));
}

QString usageLine(const Command &command, const QString &program)
{
    QString line = program;
    for (const Option &option : command.options)
        line += u' ' + shownInUsage(option);
    for (const Operand &operand : command.operands)
        line += u' ' + shownOperand(operand);
    return line;
}

QString shortUsage(const Command &command)
{
    QString line = command.name;
    for (const Option &option : command.options)
        line += option.isRequired ? u' ' + shownOption(option) : QString();
    for (const Operand &operand : command.operands)
        line += u' ' + shownOperand(operand);
    return command.commands.empty() ? line : line + " COMMAND"_L1;
}

QString shownOption(const Option &option)
{
    const QString letter = option.letter ? u"-%1, "_s.arg(QLatin1Char(option.letter)) : QString();
    return letter + dashed(option) + (option.argument ? u' ' + option.argument->name : QString());
}

QList<Option> allOptions(const Command &command)
{
    QList<Option> options(command.options.begin(), command.options.end());
    options += helpOption;
    return options;
}
