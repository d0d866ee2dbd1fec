#pragma once

#include "paper.h"
#include "typeface.h"

#include <QPainter>

/// A dot of a print head, in the unit of the type: as wide as it is high.
inline constexpr qreal dotSize = typeface::cellWidth / paper::Picture::dotsPerColumn;

/// Draws the dots of a picture; `corner` is that of the paper's first column and the picture's first row.
void drawDots(QPainter &painter, const paper::Picture &picture, QPointF corner);
