#pragma once

#include "strip.h"

#include <QPainter>
#include <QSizeF>

#include <memory>
#include <vector>

/// What a strip looks like, in the unit of the type (see typeface.h). Its upper left corner is the origin.
class Sheet
{
public:
    Sheet() = default;
    Sheet(const Sheet &) = delete;
    Sheet &operator=(const Sheet &) = delete;
    virtual ~Sheet() = default;

    /// Of the paper itself.
    virtual QSizeF size() const = 0;
    /// How far something stands out beyond the paper's right edge.
    virtual qreal overhang() const { return 0; }
    /// The shape of the paper.
    virtual QPainterPath outline() const = 0;
    /// Where each of the strip's lines is drawn, across the paper; empty for one that has no place of its
    /// own.
    virtual std::vector<QRectF> lineBoxes() const = 0;
    /// Draws all of it but the shadow. The painter is as it was afterwards.
    virtual void draw(QPainter &painter) const = 0;
};

/// The sheet of a strip, which must outlive it; with a ruler, a grid and the middle if `marks`.
std::unique_ptr<Sheet> sheetOf(const Strip &strip, bool marks);
