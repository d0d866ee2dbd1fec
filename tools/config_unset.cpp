#include "commanderror.h"
#include "config.h"
#include "keyedit.h"

using namespace Qt::Literals::StringLiterals;

ExitCode runConfigUnset(const QStringList &arguments)
{
    CommandLine line(u"palvestrin config unset [--file FILE] [--force] KEY"_s, {fileOption(), forceOption()});
    if (!line.parse(arguments, 1, 1))
        return ExitCode::Done;
    const QString key = line.argument(0);
    requireFile(ConfigFile(chosenFile(line))); // first, for a change makes the folders that are missing
    changeFile(line, key, [&](ConfigFile &file) {
        if (removeKey(file.config(), key))
            return;
        requireKnownKey(key);
        tellDeadLines(file, key);
        throw CommandError(ExitCode::NotSet, file.path, u"\"%1\" is not set"_s.arg(key));
    });
    return ExitCode::Done;
}
