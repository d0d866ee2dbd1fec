#pragma once

#include "terminalwriter.h"

/// The terminal that standard output leads to.
namespace terminal {

bool isThere();
/// Its lines; 0 when nobody knows.
int rows();
/// What it can show. Where there is none, lines may have any length and have no colours. Nor are there any
/// where the variable NO_COLOR is set.
paper::Screen screen();

} // namespace terminal
