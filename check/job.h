#pragma once

#include "finding.h"

class PVConfiguration;
class QIODevice;

namespace check {

/// Checks a print job under a configuration: what the renderer makes of it, and what it would make of it by
/// mistake. `text` is open for reading; it is read once, from where it stands, and may be of any length.
void checkJob(QIODevice &text, PVConfiguration &configuration, FindingSink &sink);

} // namespace check
