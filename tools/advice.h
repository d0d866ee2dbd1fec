#pragma once

#include "configfile.h"

/// What the commands tell people of their file beside errors, and how to go on.

/// Tells of each line that looks as if it set `key` and does not.
void tellDeadLines(const ConfigFile &file, const QString &key);

/// Tells what a file of form `as` will not hold, for whoever writes it all the same.
void tellLosses(ConfigFile &file, const QString &as);

/// `text` as one word of a shell's command line, in quotes when it needs them.
QString shellWord(const QString &text);
