#pragma once

#include "printqueues.h"

/// The printers of the print server. Throws a CommandError (PrintFailed) when it does not answer.
QList<PrintQueue> queuesOfServer();
