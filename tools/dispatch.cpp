#include "dispatch.h"

#include "commanderror.h"
#include "commandline.h"
#include "console.h"
#include "spelling.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype helpColumn = 26;

QString helpRow(const QString &left, const QString &right)
{
    return "  "_L1 + left.leftJustified(helpColumn) + ' '_L1 + right + '\n'_L1;
}

/// The manual has a page for each group of commands.
QString manualPage(QString program)
{
    return program.replace(u' ', u'-');
}

QString commandList(const Command &group, const QString &program)
{
    QString text = "Usage: "_L1 + program + " COMMAND [ARGUMENTS]\n\nCommands:\n"_L1;
    for (const Command *command : group.commands)
        text += helpRow(shortUsage(*command), command->summary);
    text += helpRow(u"help [COMMAND]"_s, u"Tell about a command."_s);
    return text +
           u"\n\"%1 help COMMAND\" tells more; \"man %2\" tells all.\n"_s.arg(program, manualPage(program));
}

QString helpText(const Command &command, const QString &program)
{
    if (!command.commands.empty())
        return commandList(command, program);
    QString text = u"Usage: %1\n\n%2\n\nOptions:\n"_s.arg(usageLine(command, program), command.summary);
    for (const Option &option : allOptions(command))
        text += helpRow(shownOption(option), option.meaning);
    return text;
}

/// The command that was probably meant, as the words behind the program: one that begins so, one of another
/// command's, or one spelled nearly so. "" when there is none.
QString meantCommand(const Command &group, const QString &word)
{
    QStringList names;
    for (const Command *command : group.commands) {
        if (QString(command->name).startsWith(word))
            return command->name;
        if (std::ranges::find(command->commands, word, &Command::name) != command->commands.end())
            return command->name + u' ' + word;
        names += command->name;
    }
    return nearestWord(word, names);
}

/// Throws a CommandError (WrongUsage) with the command that was probably meant when there is no `word`.
const Command &commandOf(const Command &group, const QString &program, const QString &word)
{
    const auto command = std::ranges::find(group.commands, word, &Command::name);
    if (command != group.commands.end())
        return **command;
    const QString meant = word.isEmpty() ? QString() : meantCommand(group, word);
    const QString hint = meant.isEmpty() ? u"\"%1 help\" lists them"_s.arg(program)
                                         : u"did you mean \"%1 %2\"?"_s.arg(program, meant);
    throw CommandError(ExitCode::WrongUsage, u"no command \"%1\"; %2"_s.arg(word, hint));
}

/// What "help" followed by `words` tells.
ExitCode tellAbout(const Command &command, const QString &program, const QByteArrayList &words)
{
    if (words.isEmpty() || command.commands.empty()) {
        printText(helpText(command, program));
        return ExitCode::Done;
    }
    const Command &inside = commandOf(command, program, fromTerminal(words.first()));
    return tellAbout(inside, program + u' ' + inside.name, words.sliced(1));
}

ExitCode runOne(const Command &command, const QString &program, const QByteArrayList &words)
{
    const CommandLine line(command, words);
    if (line.has(u"help"))
        return tellAbout(command, program, {});
    const QString trouble = line.trouble();
    if (!trouble.isEmpty()) {
        const QString joint = trouble.endsWith(u'?') ? u" usage: "_s : u"; usage: "_s;
        throw CommandError(ExitCode::WrongUsage, trouble + joint + usageLine(command, program));
    }
    return command.run(line);
}

} // namespace

ExitCode dispatch(const Command &group, const QString &program, const QByteArrayList &words)
{
    if (group.commands.empty())
        return runOne(group, program, words);
    const bool isNamed = !words.isEmpty() && (!words.first().startsWith("--") || words.first() == "--help");
    if (group.usual && !isNamed)
        return dispatch(*group.usual, program + u' ' + group.usual->name, words);
    if (words.isEmpty())
        throw CommandError(ExitCode::WrongUsage,
                           u"the command is missing\n\n%1"_s.arg(commandList(group, program).chopped(1)));
    const QByteArray &first = words.first();
    if (first == "help" || first == "--help" || first == "-h")
        return tellAbout(group, program, words.sliced(1));
    const Command &command = commandOf(group, program, fromTerminal(first));
    return dispatch(command, program + u' ' + command.name, words.sliced(1));
}
