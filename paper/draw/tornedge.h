#pragma once

#include "typeface.h"

#include <QPainterPath>
#include <QSizeF>

/// Paper that was torn off above and below along the teeth of the printer, always in the same way. The teeth
/// reach up to `tornEdgeDepth` into the paper.
QPainterPath tornPaper(QSizeF size);

/// How deep the teeth reach, in the unit of the type.
inline constexpr qreal tornEdgeDepth = typeface::cellWidth / 2;
