#pragma once

#include "command.h"

/// `palvestrin printers` and its commands, one source file each: printers_list.cpp and so on.

extern const Command printersCommand;
extern const Command printersListCommand;
extern const Command printersAddCommand;
