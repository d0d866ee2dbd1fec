#pragma once

#include <QByteArray>

/// A file name as the system takes it: bytes in no particular encoding. A type of its own, so that a plain
/// string literal remains text.
struct NativeFileName
{
    QByteArray bytes;
};
