#include "commanderror.h"
#include "config.h"
#include "console.h"
#include "knownkeys.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Operand operands[] = {{&keyArgument}};
constexpr Option options[] = {fileOption};

ExitCode run(const CommandLine &line)
{
    const QString key = line.argument(0);
    const ConfigFile file(chosenFile(line));
    noteUnreadForm(line, file);
    const QString value = file.config().lookup(key);
    if (!value.isEmpty()) {
        printText(value + u'\n');
        return ExitCode::Done;
    }
    requireKnownKey(key);
    throw CommandError(ExitCode::NotSet, file.path,
                       u"\"%1\" is not set; that means: %2"_s.arg(key, knownkeys::find(key)->whenMissing));
}

} // namespace

constinit const Command configGetCommand{.name = "get"_L1,
                                         .summary = "The value of one setting."_L1,
                                         .operands = operands,
                                         .options = options,
                                         .run = run};
