#pragma once

#include "command.h"

/// `palvestrin render`: the renderer of `palvestrin-print`, with a printer, a configuration and a locale of
/// one's choice.
extern const Command renderCommand;
