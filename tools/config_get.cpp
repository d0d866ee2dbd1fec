#include "commanderror.h"
#include "config.h"
#include "knownkeys.h"

using namespace Qt::Literals::StringLiterals;

ExitCode runConfigGet(const QStringList &arguments)
{
    CommandLine line(u"palvestrin config get [--file FILE] KEY"_s, {fileOption()});
    if (!line.parse(arguments, 1, 1))
        return ExitCode::Done;
    const QString key = line.argument(0);
    const ConfigFile file(chosenFile(line));
    noteUnreadForm(line, file);
    const QString value = file.config().lookup(key);
    if (!value.isEmpty()) {
        printText(value + u'\n');
        return ExitCode::Done;
    }
    requireKnownKey(key);
    throw CommandError(ExitCode::NotSet, file.path,
                       u"\"%1\" is not set; that means: %2"_s.arg(key, knownkeys::find(key)->whenMissing));
}
