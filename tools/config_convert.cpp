#include "commanderror.h"
#include "config.h"
#include "console.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Argument formArgument{"xml|cfg"_L1};
constexpr Option toOption{
    .name = "to"_L1, .meaning = "The form to write."_L1, .argument = &formArgument, .isRequired = true};
constexpr Option outputOption{"output"_L1, "Write this file instead of standard output."_L1, &fileArgument};
constexpr Operand operands[] = {{&fileArgument}};
constexpr Option options[] = {toOption, outputOption, forceOption};

/// The new file, or a CommandError that tells what it would lose.
QByteArray converted(ConfigFile &file, const QString &to, bool force)
{
    if (force) {
        tellLosses(file, to);
    } else if (!file.losses().empty()) {
        throw file.lossesAsError();
    }
    return file.written(to, force);
}

/// Writes the file `path`; with `force` in the place of another, which may be anything and is kept for good.
void writeOutput(const FileName &path, const QByteArray &content, bool force)
{
    FileReplacement replacement(path);
    if (path.exists()) {
        if (!force) {
            throw CommandError(
                ExitCode::WouldLose, path,
                u"it is there already; give another name, or --force, which keeps it as a backup"_s);
        }
        tellBackup(keepBackup(path, bytesOf(path), true));
    }
    replacement.commit(content);
}

ExitCode run(const CommandLine &line)
{
    ConfigFile file(line.fileArgument(0));
    requireFile(file);
    const bool force = line.has(u"force");
    const QByteArray content = converted(file, line.value(u"to"), force);
    if (line.has(u"output"))
        writeOutput(line.file(u"output"), content, force);
    else
        printBytes(content);
    return ExitCode::Done;
}

} // namespace

constinit const Command configConvertCommand{.name = "convert"_L1,
                                             .summary = "A configuration in the other form of file."_L1,
                                             .operands = operands,
                                             .options = options,
                                             .run = run};
