#pragma once

#include "command.h"
#include "configfile.h"

/// `palvestrin config`: dispatches to its commands.
ExitCode runConfig(const QStringList &arguments);

// One source file each: config_list.cpp and so on.
ExitCode runConfigList(const QStringList &arguments);
ExitCode runConfigGet(const QStringList &arguments);
ExitCode runConfigSet(const QStringList &arguments);
ExitCode runConfigUnset(const QStringList &arguments);
ExitCode runConfigShow(const QStringList &arguments);
ExitCode runConfigConvert(const QStringList &arguments);
ExitCode runConfigEdit(const QStringList &arguments);

// What they share.

QCommandLineOption fileOption();
QCommandLineOption forceOption();
QCommandLineOption uncheckedOption();

/// The file that --file names, the user's without it.
QString chosenFile(const CommandLine &line);

/// Throws a CommandError (Unreadable) when the file is not there.
void requireFile(const ConfigFile &file);

/// Throws a CommandError (Refused) with the key that was probably meant, unless the key is known.
void requireKnownKey(const QString &key);

/// Tells where the old file is kept for good, if it is.
void tellBackup(const QString &path);

/// Locks `path`, reads it, lets `change` change the tree, and saves. Throws a CommandError.
template <typename Change>
void changeFile(const QString &path, bool force, Change change)
{
    FileReplacement replacement(path);
    ConfigFile file(path);
    change(file);
    tellBackup(file.save(replacement, force));
}
