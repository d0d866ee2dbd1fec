#include "commanderror.h"
#include "config.h"
#include "keyedit.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Operand operands[] = {{&keyArgument}};
constexpr Option options[] = {fileOption, forceOption};

ExitCode run(const CommandLine &line)
{
    const QString key = line.argument(0);
    requireFile(ConfigFile(chosenFile(line))); // first, for a change makes the folders that are missing
    changeFile(line, key, [&](ConfigFile &file) {
        if (removeKey(file.config(), key))
            return;
        requireKnownKey(key);
        tellDeadLines(file, key);
        throw CommandError(ExitCode::NotSet, file.path, u"\"%1\" is not set"_s.arg(key));
    });
    return ExitCode::Done;
}

} // namespace

constinit const Command configUnsetCommand{.name = "unset"_L1,
                                           .summary = "Remove one setting."_L1,
                                           .operands = operands,
                                           .options = options,
                                           .run = run};
