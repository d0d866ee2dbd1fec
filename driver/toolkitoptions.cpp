#include "toolkitoptions.h"

namespace {

using Pass = ToolkitOption::Pass;
using Value = ToolkitOption::Value;

/// How many words `option` takes when `word` is followed by `more` others: 0 when it is not this option.
int wordsTaken(const ToolkitOption &option, std::string_view word, int more)
{
    if (!word.starts_with(option.name))
        return 0;
    const std::string_view rest = word.substr(option.name.size());
    if (!rest.empty())
        return rest.front() == '=' && option.value == Value::NextWordOrEquals ? 1 : 0;
    switch (option.value) {
    case Value::None:
        return 1;
    case Value::NextWord:
        return 2;
    default:
        return more > 0 ? 2 : 0;
    }
}

/// The same for whichever option of a pass.
int wordsTaken(Pass pass, std::string_view word, int more)
{
    if (word.starts_with("--"))
        word.remove_prefix(1);
    for (const ToolkitOption &option : toolkitOptions) {
        const int taken = option.pass == pass ? wordsTaken(option, word, more) : 0;
        if (taken > 0)
            return taken;
    }
    return 0;
}

void dropOptions(Pass pass, int &argc, char **argv)
{
    int kept = 1; // the program's name
    for (int i = 1; i < argc;) {
        const int taken = wordsTaken(pass, argv[i], argc - i - 1);
        if (taken == 0)
            argv[kept++] = argv[i++];
        i += taken;
    }
    if (kept < argc)
        argv[kept] = nullptr;
    argc = kept;
}

} // namespace

void dropToolkitOptions(int &argc, char **argv)
{
    for (const Pass pass : {Pass::Platform, Pass::Core, Pass::Gui, Pass::Widgets})
        dropOptions(pass, argc, argv);
}
