#include "config.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Option options[] = {fileOption};

ExitCode run(const CommandLine &line)
{
    const ConfigFile file(chosenFile(line));
    requireFile(file);
    noteUnreadForm(line, file);
    file.config().printConfigTree();
    return ExitCode::Done;
}

} // namespace

constinit const Command configShowCommand{
    .name = "show"_L1, .summary = "The file as the programs read it."_L1, .options = options, .run = run};
