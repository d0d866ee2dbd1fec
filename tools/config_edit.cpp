#include "companion.h"
#include "config.h"

using namespace Qt::Literals::StringLiterals;

ExitCode runConfigEdit(const QStringList &arguments)
{
    CommandLine line(u"palvestrin config edit [--file FILE]"_s, {fileOption()});
    if (!line.parse(arguments, 0, 0))
        return ExitCode::Done;
    const QString path = chosenFile(line);
    requireReadForm(line, ConfigFile(path));
    becomeCompanion({u"palvestrin-settings"_s, u"palvestrin-desktop"_s}, {u"--file"_s, path});
}
