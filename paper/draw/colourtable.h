#pragma once

#include <QImage>

/// The same picture with a table of colours, which makes its file a third as long. Each pixel takes the
/// nearest of the colours that the pictures have, soft edges included.
QImage withColourTable(const QImage &image);
