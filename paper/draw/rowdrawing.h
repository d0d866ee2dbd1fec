#pragma once

#include "paper.h"

#include <QPainter>

/// Of a row, which is as high as its highest cell, in the unit of the type.
qreal heightOf(const paper::Row &row);

/// Draws a row on its grid of columns, the upper left corner of the first one at `corner`. What stands beyond
/// `paperColumns`, and where the stream is broken, is marked.
void drawRow(QPainter &painter, const paper::Row &row, int paperColumns, QPointF corner);
