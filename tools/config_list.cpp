#include "config.h"
#include "console.h"
#include "keyedit.h"
#include "knownkeys.h"
#include "listing.h"
#include "usercatalogue.h"

#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Argument nameArgument{"NAME"_L1, offerNames};
constexpr Option jsonOption{"json"_L1, "Print JSON, in UTF-8."_L1};
constexpr Option namesOption{"names"_L1, "Print the known keys only, one a line."_L1};
constexpr Operand operands[] = {{&nameArgument, Operand::AtMostOne}};
constexpr Option options[] = {fileOption, jsonOption, namesOption, showSecretsOption};

ExitCode list(const CommandLine &line)
{
    const QString name = line.argument(0);
    if (line.has(u"names")) {
        printText(namesOfKnownKeys(name));
        return ExitCode::Done;
    }
    ConfigFile file(chosenFile(line));
    if (!file.exists())
        printNote(u"there is no file %1; nothing is set"_s.arg(file.path.shown()));
    noteUnreadForm(line, file);
    std::vector<ListedKey> keys = listedKeys(file.config(), name);
    if (keys.empty())
        requireKnownKey(name); // tells what was probably meant
    if (!line.has(u"show-secrets"))
        hideSecrets(keys);
    if (line.has(u"json"))
        printBytes(asJson(keys));
    else
        printText(asText(keys));
    return ExitCode::Done;
}

/// In the user's language, which needs the toolkit's application object.
ExitCode run(const CommandLine &line)
{
    int count = 1;
    char name[] = "palvestrin";
    char *words[] = {name, nullptr};
    const QCoreApplication application(count, words);
    QTranslator catalogue;
    if (loadUserCatalogue(catalogue))
        QCoreApplication::installTranslator(&catalogue);
    return list(line);
}

} // namespace

constinit const Command configListCommand{.name = "list"_L1,
                                          .summary = "Every setting: value, meaning, who reads it."_L1,
                                          .operands = operands,
                                          .options = options,
                                          .run = run};
