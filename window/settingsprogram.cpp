#include "settingsprogram.h"

#include "commanderror.h"
#include "localeencoding.h"
#include "pvconfiguration.h"
#include "settingswindow.h"
#include "typeface.h"
#include "usercatalogue.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <QLibraryInfo>
#include <QTranslator>

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

/// The file that --file names, as bytes, which the toolkit's parser does not keep; the user's without it.
/// Throws a CommandError (WrongUsage) when the name is empty.
FileName chosenFile(int argc, char **argv)
{
    FileName chosen = PVConfiguration::userFile();
    for (int i = 1; i < argc; ++i) {
        const QByteArray word = argv[i];
        if (word.startsWith("--file="))
            chosen = FileName(word.sliced(qstrlen("--file=")));
        else if (word == "--file" && i + 1 < argc)
            chosen = FileName(QByteArray(argv[++i]));
    }
    if (chosen.isEmpty())
        throw CommandError(ExitCode::WrongUsage, u"--file is empty; give the name of a file"_s);
    return chosen;
}

/// Puts the words of the program, and those of the toolkit's own buttons, into the user's language.
class UserLanguage
{
public:
    UserLanguage()
    {
        if (toolkit.load(QLocale(), u"qtbase"_s, u"_"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
            QApplication::installTranslator(&toolkit);
        if (loadUserCatalogue(program))
            QApplication::installTranslator(&program);
    }

private:
    QTranslator toolkit;
    QTranslator program;
};

void nameProgram()
{
    QApplication::setOrganizationName(u"Palvestrin"_s);
    QApplication::setApplicationName(u"palvestrin-settings"_s);
    QApplication::setApplicationVersion(QStringLiteral(PALVESTRIN_VERSION));
    QApplication::setDesktopFileName(u"palvestrin-settings"_s);
    QApplication::setWindowIcon(QIcon(u":/icons/palvestrin-settings.svg"_s));
}

ExitCode run(int argc, char **argv)
{
    requireDisplay();
    QApplication application(argc, argv);
    nameProgram();
    const UserLanguage language;
    QCommandLineParser parser;
    parser.setApplicationDescription(u"The settings of Palvestrin Print, in a window."_s);
    const QCommandLineOption file(u"file"_s, u"Use this configuration instead of the user's."_s, u"FILE"_s);
    parser.addOption(file);
    parser.addHelpOption();
    parser.process(application);

    typeface::require();
    SettingsWindow window(chosenFile(argc, argv));
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
            std::cerr << LocaleEncoding().encode(line).toStdString() << '\n';
        return error.code();
    }
}
