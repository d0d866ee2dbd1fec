#pragma once

#include <QByteArray>
#include <QPainterPath>

/// The operators that draw a path, without the one that fills or strokes it.
QByteArray pdfPath(const QPainterPath &path);
