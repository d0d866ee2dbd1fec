#pragma once

#include "command.h"

/// `palvestrin print`: prints jobs through the print server, and tells what became of them.
extern const Command printCommand;
