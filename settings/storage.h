#pragma once

#include "filename.h"

#include <QString>

/// Why `value` is not taken for `key`, and what would be; "" when it is taken. An empty value is: it is the
/// same as a missing key. This is one policy for the command line and the window: what the file cannot hold,
/// and what no program makes sense of. Any text that can be held goes under a key that no program reads.
QString storageObjection(const QString &key, const QString &value);

/// Why a configuration of that name could not be saved now, in words; "" when nothing is in the way.
QString writingObstacle(const FileName &path);
