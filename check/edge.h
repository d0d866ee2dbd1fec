#pragma once

#include "jobelement.h"

class LocaleEncoding;

namespace check {

/// Rows that are wider than the paper.
void checkEdge(const JobElement &element, const LocaleEncoding &encoding, FindingSink &sink);

} // namespace check
