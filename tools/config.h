#pragma once

#include "advice.h"
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

/// The programs read the user's own file as text, whatever it holds. When it is XML: looking at it gets a
/// note, changing it throws a CommandError (Unreadable), for no program would see the change.
void noteUnreadForm(const CommandLine &line, const ConfigFile &file);
void requireReadForm(const CommandLine &line, const ConfigFile &file);

/// Throws a CommandError (Refused) with the key that was probably meant, unless the key is known.
void requireKnownKey(const QString &key);

/// Tells where the old file is kept for good, if it is.
void tellBackup(const QString &path);

/// Locks the chosen file, reads it, lets `change` change `key` in the tree, and saves. Throws a CommandError.
template <typename Change>
void changeFile(const CommandLine &line, const QString &key, Change change)
{
    const QString path = chosenFile(line);
    FileReplacement replacement(path);
    ConfigFile file(path);
    requireReadForm(line, file);
    change(file);
    tellBackup(file.save(replacement, line.has(QStringLiteral("force"))));
    tellDeadLines(file, key);
}
