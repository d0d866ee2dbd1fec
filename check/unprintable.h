#pragma once

#include "jobelement.h"

class LocaleEncoding;

namespace check {

/// Whether the encoding lacks a character of the text.
bool isLossy(const LocaleEncoding &encoding, const QString &text);

/// Characters that the printer's encoding lacks.
void checkEncoding(const JobElement &element, const LocaleEncoding &encoding, FindingSink &sink);

} // namespace check
