#include "config.h"

using namespace Qt::Literals::StringLiterals;

ExitCode runConfigShow(const QStringList &arguments)
{
    CommandLine line(u"palvestrin config show [--file FILE]"_s, {fileOption()});
    if (!line.parse(arguments, 0, 0))
        return ExitCode::Done;
    const ConfigFile file(chosenFile(line));
    requireFile(file);
    noteUnreadForm(line, file);
    file.config().printConfigTree();
    return ExitCode::Done;
}
