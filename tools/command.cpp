#include "command.h"

#include "commanderror.h"

#include <algorithm>
#include <iostream>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype helpColumn = 24;

QString helpRow(const QString &left, const QString &right)
{
    return "  "_L1 + left.leftJustified(helpColumn) + ' '_L1 + right + '\n'_L1;
}

QString commandList(std::span<const Command> commands, const QString &program)
{
    QString text = "Usage: "_L1 + program + " COMMAND [ARGUMENTS]\n\nCommands:\n"_L1;
    for (const Command &command : commands)
        text += helpRow(command.name + u' ' + command.arguments, command.summary);
    return text + "\n\""_L1 + program + " COMMAND --help\" tells more; \"man palvestrin\" tells all.\n"_L1;
}

} // namespace

ExitCode runOneOf(std::span<const Command> commands, const QString &program, const QStringList &arguments)
{
    if (arguments.isEmpty()) {
        throw CommandError(ExitCode::WrongUsage,
                           u"no command given; \"%1 --help\" lists them"_s.arg(program));
    }
    const QString &name = arguments.first();
    if (name == "--help"_L1 || name == "-h"_L1) {
        printText(commandList(commands, program));
        return ExitCode::Done;
    }
    const auto command = std::ranges::find(commands, name, &Command::name);
    if (command == commands.end()) {
        throw CommandError(ExitCode::WrongUsage,
                           u"no command \"%1\"; \"%2 --help\" lists them"_s.arg(name, program));
    }
    return command->run(arguments.mid(1));
}

CommandLine::CommandLine(const QString &usageLine, const QList<QCommandLineOption> &known)
    : usage(usageLine), options(known)
{
    options += QCommandLineOption({u"h"_s, u"help"_s}, u"Show this help."_s);
    parser.addOptions(options);
}

bool CommandLine::parse(const QStringList &arguments, qsizetype least, qsizetype most)
{
    const bool understood = parser.parse(QStringList{u"palvestrin"_s} + arguments);
    if (understood && parser.isSet(u"help"_s)) {
        printText(helpText());
        return false;
    }
    const qsizetype count = parser.positionalArguments().size();
    if (understood && count >= least && count <= most)
        return true;
    const QString what = understood ? u"%1 arguments given"_s.arg(count) : parser.errorText().chopped(1);
    throw CommandError(
        ExitCode::WrongUsage,
        u"%1; usage: %2 (an argument that begins with \"-\" goes behind \"--\")"_s.arg(what, usage));
}

QString CommandLine::helpText() const
{
    QString text = "Usage: "_L1 + usage + "\n\nOptions:\n"_L1;
    for (const QCommandLineOption &option : options)
        text += helpRow("--"_L1 + option.names().last() + ' '_L1 + option.valueName(), option.description());
    return text;
}

void printText(const QString &text)
{
    std::cout << text.toStdString();
}

void printNote(const QString &text)
{
    std::cerr << "palvestrin: note: " << text.toStdString() << '\n';
}
