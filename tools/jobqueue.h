#pragma once

#include "filename.h"
#include "finishedoutput.h"

#include <QString>

/// The printer that a job names in its first `printers` element; "" when it names none, or is no job.
QString printerNamedIn(const FileName &job);

/// How often the print server is to print the output: as the user's settings say for the first document of
/// its job. What is for a receipt printer has its copies in it; what is for a cash register is done once.
int copiesToAskFor(FinishedOutput &output);
