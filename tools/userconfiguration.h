#pragma once

#include "findingreport.h"

/// Checks the user's own configuration as what the programs of this machine read, the folders that it names
/// among it. Throws a CommandError (Unreadable) when there is none.
void checkUserConfiguration(FindingReport &report);
