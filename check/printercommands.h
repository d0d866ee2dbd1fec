#pragma once

#include "jobelement.h"

namespace check {

/// Text on the paper that printer or register would take for a command.
void checkCommands(const JobElement &element, FindingSink &sink);

} // namespace check
