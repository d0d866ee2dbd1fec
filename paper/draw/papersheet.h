#pragma once

#include "sheet.h"
#include "typeface.h"

/// A strip of roll paper: torn off above and below, with its rows on their columns.
class PaperSheet : public Sheet
{
public:
    /// Blank columns at the left and at the right of the rows.
    static constexpr int margin = 2;
    static QPointF firstRow(bool marks);

    PaperSheet(const Strip &toDraw, bool withMarks);

    QSizeF size() const override { return paperSize; }
    qreal overhang() const override;
    QPainterPath outline() const override;
    std::vector<QRectF> lineBoxes() const override;
    void draw(QPainter &painter) const override;

private:
    void drawLines(QPainter &painter) const;

    const Strip &strip;
    bool marks;
    QSizeF paperSize;
};
