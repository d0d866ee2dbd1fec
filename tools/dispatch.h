#pragma once

#include "command.h"

#include <QByteArrayList>

/// Runs the command of `group` that `words` begin with, down to one that has no commands of its own; "--help"
/// and "help" tell about it instead. `program` is what stands in front of the words on the command line.
/// Throws a CommandError.
ExitCode dispatch(const Command &group, const QString &program, const QByteArrayList &words);

/// The program itself, and under it all its commands.
extern const Command palvestrinCommand;

/// All of `palvestrin`: `words` are those behind the program's name. Prints what goes wrong.
ExitCode runPalvestrin(const QByteArrayList &words);
