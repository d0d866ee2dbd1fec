#pragma once

#include "typeface.h"

#include <QPainter>
#include <QRectF>

/// Of the ruler that stands above the rows.
inline constexpr qreal rulerHeight = 1.5 * typeface::rowHeight;

/// Draws behind the rows, which fill `rows`: a ruler of the columns above them, a line for every fifth
/// column, and the middle of the paper.
void drawMarks(QPainter &painter, int columns, const QRectF &rows);
