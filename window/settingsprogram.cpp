#include "settingsprogram.h"

#include "commanderror.h"
#include "configwindow.h"
#include "pvconfiguration.h"

#include <QApplication>
#include <QCommandLineParser>

#include <iostream>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Without a display the toolkit would abort the program.
void requireDisplay()
{
    if (qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
        qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        return;
    throw CommandError(ExitCode::WrongUsage,
                       u"there is no display for a window; use \"palvestrin config set\""_s);
}

ExitCode run(int argc, char **argv)
{
    requireDisplay();
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(u"The settings of Palvestrin Print, in a window."_s);
    const QCommandLineOption file(u"file"_s, u"Use this configuration instead of the user's."_s, u"FILE"_s,
                                  PVConfiguration::userFile());
    parser.addOption(file);
    parser.addHelpOption();
    parser.process(application);

    ConfigWindow window(parser.value(file));
    window.show();
    QApplication::exec();
    return ExitCode::Done;
}

} // namespace

ExitCode runSettingsProgram(int argc, char **argv)
{
    try {
        return run(argc, argv);
    } catch (const CommandError &error) {
        for (const QString &line : error.messages())
            std::cerr << line.toStdString() << '\n';
        return error.code();
    }
}
