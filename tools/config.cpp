#include "config.h"

#include "commanderror.h"
#include "knownkeys.h"
#include "pvconfiguration.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Command commands[] = {
    {"list"_L1, "[PREFIX]"_L1, "every setting: value, meaning, who reads it"_L1, runConfigList},
    {"get"_L1, "KEY"_L1, "the value of one setting"_L1, runConfigGet},
    {"set"_L1, "KEY VALUE"_L1, "change one setting"_L1, runConfigSet},
    {"unset"_L1, "KEY"_L1, "remove one setting"_L1, runConfigUnset},
    {"show"_L1, ""_L1, "the file as the programs read it"_L1, runConfigShow},
    {"convert"_L1, "--to FORM FILE"_L1, "a configuration in the other form of file"_L1, runConfigConvert},
    {"edit"_L1, ""_L1, "change settings in a window"_L1, runConfigEdit},
};

/// Whether this is the user's own file, and XML.
bool hasUnreadForm(const CommandLine &line, const ConfigFile &file)
{
    return !line.has(u"file"_s) && file.type() == form::xml;
}

constexpr auto unreadForm = "the programs read this file as text, and it is XML"_L1;

} // namespace

ExitCode runConfig(const QStringList &arguments)
{
    return runOneOf(commands, u"palvestrin config"_s, arguments);
}

QCommandLineOption fileOption()
{
    return {u"file"_s, u"Use this configuration instead of the user's."_s, u"FILE"_s};
}

QCommandLineOption forceOption()
{
    return {u"force"_s, u"Write even if something of the file gets lost."_s};
}

QCommandLineOption uncheckedOption()
{
    return {u"unchecked"_s, u"Accept keys and values that no program knows."_s};
}

QString chosenFile(const CommandLine &line)
{
    return line.has(u"file"_s) ? line.value(u"file"_s) : PVConfiguration::userFile();
}

void requireFile(const ConfigFile &file)
{
    if (!file.exists()) {
        throw CommandError(ExitCode::Unreadable, file.path,
                           u"there is no such file; \"palvestrin config set\" makes it"_s);
    }
}

void noteUnreadForm(const CommandLine &line, const ConfigFile &file)
{
    if (hasUnreadForm(line, file))
        printNote(u"%1: %2"_s.arg(file.path, unreadForm));
}

void requireReadForm(const CommandLine &line, const ConfigFile &file)
{
    if (!hasUnreadForm(line, file))
        return;
    throw CommandError(ExitCode::Unreadable, file.path,
                       u"%1; make it text: palvestrin config convert --to cfg --force --output %2 %2"_s.arg(
                           unreadForm, shellWord(file.path)));
}

void requireKnownKey(const QString &key)
{
    if (knownkeys::find(key))
        return;
    const QString meant = knownkeys::closest(key);
    const QString hint = meant.isEmpty() ? u"\"palvestrin config list\" lists the known ones"_s
                                         : u"did you mean \"%1\"?"_s.arg(meant);
    throw CommandError(ExitCode::Refused, u"no program reads \"%1\"; %2"_s.arg(key, hint));
}

void tellBackup(const QString &path)
{
    if (!path.isEmpty())
        printNote(u"the file as it was is kept as %1"_s.arg(path));
}
