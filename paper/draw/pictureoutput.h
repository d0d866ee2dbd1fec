#pragma once

#include <QByteArray>
#include <QString>

/// Writes a picture to `path`, or to standard output for "-". A file is there whole or as it was before; a
/// device or a pipe is written to as it is. Throws a CommandError (WriteFailed).
void writePicture(const QString &path, const QByteArray &picture);
