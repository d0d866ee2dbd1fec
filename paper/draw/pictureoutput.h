#pragma once

#include "filename.h"

#include <QByteArray>

/// Writes a picture to a file, or to standard output for the name "-". A file is there whole or as it was
/// before; a device or a pipe is written to as it is. Throws a CommandError (WriteFailed).
void writePicture(const FileName &name, const QByteArray &picture);
