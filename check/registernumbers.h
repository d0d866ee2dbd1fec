#pragma once

#include "jobelement.h"

namespace check {

/// Numbers that the renderer or the cash register needs, and cannot make out, or not to the cent.
void checkNumbers(const JobElement &element, FindingSink &sink);

} // namespace check
