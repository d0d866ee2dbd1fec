#include "check.h"
#include "commanderror.h"
#include "completion.h"
#include "config.h"
#include "console.h"
#include "dispatch.h"
#include "preview.h"
#include "print.h"
#include "printers.h"
#include "render.h"

#include <iostream>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr const Command *commands[] = {&checkCommand, &configCommand,   &previewCommand,
                                       &printCommand, &printersCommand, &renderCommand};

ExitCode run(const QByteArrayList &words)
{
    if (words.value(0) == "--version") {
        printText("palvestrin "_L1 + QLatin1StringView(PALVESTRIN_VERSION) + '\n'_L1);
        return ExitCode::Done;
    }
    if (words.value(0) == "--complete") { // for the shells' completions
        printText(offersFor(palvestrinCommand, words.sliced(1)));
        return ExitCode::Done;
    }
    return dispatch(palvestrinCommand, palvestrinCommand.name, words);
}

} // namespace

constinit const Command palvestrinCommand{.name = "palvestrin"_L1, .commands = commands};

ExitCode runPalvestrin(const QByteArrayList &words)
{
    try {
        const ExitCode result = run(words);
        if (!std::cout.flush())
            throw CommandError(ExitCode::WriteFailed, u"standard output cannot be written"_s);
        return result;
    } catch (const CommandError &error) {
        printErrors(error);
        return error.code();
    }
}
