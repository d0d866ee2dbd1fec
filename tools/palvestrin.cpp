#include "command.h"
#include "commanderror.h"
#include "config.h"

#include <iostream>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Command commands[] = {
    {"config"_L1, "COMMAND"_L1, "find, understand and change settings"_L1, runConfig},
};

ExitCode run(const QStringList &arguments)
{
    if (arguments.value(0) == "--version"_L1) {
        printText("palvestrin "_L1 + QLatin1StringView(PALVESTRIN_VERSION) + '\n'_L1);
        return ExitCode::Done;
    }
    return runOneOf(commands, u"palvestrin"_s, arguments);
}

} // namespace

ExitCode runPalvestrin(const QStringList &arguments)
{
    try {
        const ExitCode result = run(arguments);
        if (!std::cout.flush())
            throw CommandError(ExitCode::WriteFailed, u"standard output cannot be written"_s);
        return result;
    } catch (const CommandError &error) {
        std::cout.flush();
        for (const QString &line : error.messages())
            std::cerr << line.toStdString() << '\n';
        return error.code();
    }
}
