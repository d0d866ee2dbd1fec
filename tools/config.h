#pragma once

#include "advice.h"
#include "commandline.h"
#include "completion.h"
#include "configfile.h"

/// `palvestrin config` and its commands, one source file each: config_list.cpp and so on.

extern const Command configCommand;
extern const Command configListCommand;
extern const Command configGetCommand;
extern const Command configSetCommand;
extern const Command configUnsetCommand;
extern const Command configShowCommand;
extern const Command configConvertCommand;
extern const Command configCheckCommand;
extern const Command configEditCommand;
extern const Command configInitCommand;

// What they share.

inline constexpr Argument keyArgument{QLatin1StringView("KEY"), offerKeys};
inline constexpr Option fileOption{.name = QLatin1StringView("file"),
                                   .meaning =
                                       QLatin1StringView("Use this configuration instead of the user's."),
                                   .argument = &fileArgument};
inline constexpr Option forceOption{.name = QLatin1StringView("force"),
                                    .meaning =
                                        QLatin1StringView("Write even if something of the file gets lost.")};

inline constexpr Option showSecretsOption{.name = QLatin1StringView("show-secrets"),
                                          .meaning = QLatin1StringView("Show passwords, too.")};

/// The file that --file names, the user's without it.
FileName chosenFile(const CommandLine &line);

/// Throws a CommandError (Unreadable) when the file is not there.
void requireFile(const ConfigFile &file);
[[noreturn]] void refuseMissing(const FileName &path);

/// The programs read the user's own file as text, whatever it holds. When it is XML: looking at it gets a
/// note, changing it throws a CommandError (Unreadable), for no program would see the change.
void noteUnreadForm(const CommandLine &line, const ConfigFile &file);
void requireReadForm(const CommandLine &line, const ConfigFile &file);

/// Throws a CommandError (Refused) with the key that was probably meant, unless the key is known.
void requireKnownKey(const QString &key);

/// Tells where the old file is kept for good, if it is.
void tellBackup(const FileName &path);

/// Locks the chosen file, reads it, lets `change` change `key` in the tree, and saves. Throws a CommandError.
template <typename Change>
void changeFile(const CommandLine &line, const QString &key, Change change)
{
    const FileName path = chosenFile(line);
    FileReplacement replacement(path);
    ConfigFile file(path);
    requireReadForm(line, file);
    change(file);
    tellBackup(file.save(replacement, line.has(u"force")));
    tellDeadLines(file, key);
}
