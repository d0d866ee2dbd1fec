#include "commanderror.h"
#include "config.h"
#include "configwindow.h"

#include <QApplication>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Without a display the toolkit would abort the program.
bool hasDisplay()
{
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

} // namespace

ExitCode runConfigEdit(const QStringList &arguments)
{
    CommandLine line(u"palvestrin config edit [--file FILE]"_s, {fileOption()});
    if (!line.parse(arguments, 0, 0))
        return ExitCode::Done;
    if (!hasDisplay()) {
        throw CommandError(ExitCode::WrongUsage,
                           u"there is no display for a window; use \"palvestrin config set\""_s);
    }
    const QString path = chosenFile(line);
    requireReadForm(line, ConfigFile(path));
    int count = 1;
    char name[] = "palvestrin";
    char *words[] = {name, nullptr};
    QApplication application(count, words);
    ConfigWindow window(path);
    window.show();
    QApplication::exec();
    return ExitCode::Done;
}
