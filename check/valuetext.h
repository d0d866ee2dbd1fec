#pragma once

#include "readitem.h"

namespace check {

/// Tells what the reader makes of the value of `item` otherwise than it seems meant, and what the value
/// swallowed. Whether anything was told that makes its text senseless.
bool checkValueText(const libconfig::Token &token, const ReadItem &item, FindingSink &sink);

} // namespace check
