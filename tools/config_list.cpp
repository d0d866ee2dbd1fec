#include "config.h"
#include "keyedit.h"
#include "knownkeys.h"
#include "listing.h"

using namespace Qt::Literals::StringLiterals;

ExitCode runConfigList(const QStringList &arguments)
{
    CommandLine line(u"palvestrin config list [--file FILE] [--json | --names] [PREFIX]"_s,
                     {fileOption(), QCommandLineOption(u"json"_s, u"Print JSON."_s),
                      QCommandLineOption(u"names"_s, u"Print the known keys only, one a line."_s)});
    if (!line.parse(arguments, 0, 1))
        return ExitCode::Done;
    const QString prefix = line.argument(0);
    if (line.has(u"names"_s)) {
        printText(namesOfKnownKeys(prefix));
        return ExitCode::Done;
    }
    ConfigFile file(chosenFile(line));
    if (!file.exists())
        printNote(u"there is no file %1; nothing is set"_s.arg(file.path));
    noteUnreadForm(line, file);
    const std::vector<ListedKey> keys = listedKeys(file.config(), prefix);
    if (keys.empty())
        requireKnownKey(prefix); // tells what was probably meant
    printText(line.has(u"json"_s) ? asJson(keys) : asText(keys));
    return ExitCode::Done;
}
