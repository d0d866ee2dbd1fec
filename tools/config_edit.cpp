#include "companion.h"
#include "config.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Option options[] = {fileOption};

ExitCode run(const CommandLine &line)
{
    const FileName path = chosenFile(line);
    requireReadForm(line, ConfigFile(path));
    becomeCompanion({u"palvestrin-settings"_s, u"palvestrin-desktop"_s}, {"--file", path.bytes()});
}

} // namespace

constinit const Command configEditCommand{
    .name = "edit"_L1, .summary = "Change settings in a window."_L1, .options = options, .run = run};
