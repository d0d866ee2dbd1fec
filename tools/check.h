#pragma once

#include "command.h"

/// `palvestrin check`: what is wrong with a file, and where.
extern const Command checkCommand;
