#include "config.h"

#include "commanderror.h"
#include "console.h"
#include "knownkeys.h"
#include "pvconfiguration.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr const Command *commands[] = {&configListCommand,  &configGetCommand,  &configSetCommand,
                                       &configUnsetCommand, &configShowCommand, &configConvertCommand,
                                       &configCheckCommand, &configEditCommand, &configInitCommand};

/// Whether this is the user's own file, and XML.
bool hasUnreadForm(const CommandLine &line, const ConfigFile &file)
{
    return !line.has(u"file") && file.type() == form::xml;
}

constexpr auto unreadForm = "the programs read this file as text, and it is XML"_L1;

} // namespace

constinit const Command configCommand{
    .name = "config"_L1, .summary = "Find, understand and change settings."_L1, .commands = commands};

FileName chosenFile(const CommandLine &line)
{
    return line.has(u"file") ? line.file(u"file") : FileName(PVConfiguration::userFile());
}

void requireFile(const ConfigFile &file)
{
    if (!file.exists())
        refuseMissing(file.path);
}

void refuseMissing(const FileName &path)
{
    throw CommandError(ExitCode::Unreadable, path,
                       u"there is no such file; \"palvestrin config set\" makes it"_s);
}

void noteUnreadForm(const CommandLine &line, const ConfigFile &file)
{
    if (hasUnreadForm(line, file))
        printNote(u"%1: %2"_s.arg(file.path.shown(), unreadForm));
}

void requireReadForm(const CommandLine &line, const ConfigFile &file)
{
    if (!hasUnreadForm(line, file))
        return;
    throw CommandError(ExitCode::Unreadable, file.path,
                       u"%1; make it text: palvestrin config convert --to cfg --force --output %2 %2"_s.arg(
                           unreadForm, shellWord(file.path.shown())));
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

void tellBackup(const FileName &path)
{
    if (!path.isEmpty())
        printNote(u"the file as it was is kept as %1"_s.arg(path.shown()));
}
