#pragma once

#include "paper.h"

#include <QByteArray>

/// The QR code of `text` with squares of `module` dots and error correction from 0, the least, to 3. It has
/// no dots when the text is too long for one.
paper::Picture qrCode(const QByteArray &text, int level, int module);
