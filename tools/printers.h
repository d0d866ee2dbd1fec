#pragma once

#include "command.h"

/// `palvestrin printers`: lists the printers of the print server; `palvestrin printers add` adds one.
extern const Command printersCommand;
