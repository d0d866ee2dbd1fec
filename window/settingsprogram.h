#pragma once

#include "exitcode.h"

/// All of `palvestrin-settings [--file FILE]`: shows the window until it is closed. Without a file it is the
/// user's own. Prints what goes wrong on standard error.
ExitCode runSettingsProgram(int argc, char **argv);
