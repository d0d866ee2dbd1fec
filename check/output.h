#pragma once

#include "finding.h"

#include <QByteArray>

class QIODevice;

namespace check {

/// Checks a finished output: of the line printer or the cash register, in `encoding`, or the commands of a
/// receipt printer. `stream` is open for reading; it is read once, from where it stands, in flat memory.
///
/// The commands of a receipt printer have no lines: they count as one, and their columns are bytes.
void checkOutput(QIODevice &stream, const QByteArray &encoding, FindingSink &sink);

} // namespace check
