#pragma once

#include "exitcode.h"

/// All of `palvestrin-draw`: draws the stream on standard input to a file. Prints what goes wrong on standard
/// error.
ExitCode runDrawProgram(int argc, char **argv);
