#include "commanderror.h"
#include "config.h"
#include "console.h"
#include "presets.h"
#include "treestate.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Argument paperArgument{"58|80"_L1};
constexpr Argument presetArgument{"kitchen|bar|shop"_L1};
constexpr Option options[] = {
    {"paper"_L1, "Width of the paper in millimetres; 80 when not given."_L1, &paperArgument},
    {"preset"_L1, "What kind of house it is for; kitchen when not given."_L1, &presetArgument},
    fileOption,
    {"force"_L1, "Replace the settings of a file that is there."_L1},
};

void refuseToReplace(const ConfigFile &file)
{
    if (file.content().trimmed().isEmpty())
        return;
    throw CommandError(
        ExitCode::WouldLose, file.path,
        u"there are settings already; \"palvestrin config set\" changes them, --force replaces them "
        "and keeps the file as it was"_s);
}

ExitCode run(const CommandLine &line)
{
    const presets::Paper *paper = presets::findPaper(line.has(u"paper") ? line.value(u"paper") : u"80"_s);
    const presets::House *house =
        presets::findHouse(line.has(u"preset") ? line.value(u"preset") : u"kitchen"_s);
    FileReplacement replacement(chosenFile(line));
    ConfigFile file(chosenFile(line));
    if (!line.has(u"force"))
        refuseToReplace(file);
    requireReadForm(line, file);
    restore(file.config(), {});
    presets::apply(file.config(), *house, *paper);
    tellBackup(file.save(replacement, true, file.exists()));
    printNote(u"%1 is ready; \"palvestrin config edit\" shows it on paper"_s.arg(file.path.shown()));
    return ExitCode::Done;
}

} // namespace

constinit const Command configInitCommand{.name = "init"_L1,
                                          .summary =
                                              "Begin with settings for a kind of house and its paper."_L1,
                                          .options = options,
                                          .run = run};
