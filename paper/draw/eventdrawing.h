#pragma once

#include "paper.h"
#include "typeface.h"

#include <QPainter>

/// What happens between two rows takes a row of its own, in which it is told in small type.
inline constexpr qreal eventHeight = typeface::rowHeight;

/// Draw across paper of that width.
void drawEvent(QPainter &painter, paper::Event event, qreal top, qreal paperWidth);
void drawRemark(QPainter &painter, const QString &remark, qreal top, qreal paperWidth);
