#include "marks.h"

#include "colours.h"

using typeface::cellWidth;
using typeface::rowHeight;

namespace {

constexpr int gridStep = 5; // columns

void drawNumber(QPainter &painter, int column, QPointF foot)
{
    constexpr qreal height = 17;
    const QPainterPath number = typeface::caption(QString::number(column), height);
    painter.fillPath(number.translated(foot - QPointF(number.boundingRect().center().x(), 0)), colours::mark);
}

void drawRuler(QPainter &painter, int columns, QPointF start)
{
    for (int column = 0; column <= columns; ++column) {
        const bool isFifth = column % gridStep == 0;
        const QPointF foot = start + QPointF(column * cellWidth, -4);
        painter.drawLine(foot, foot - QPointF(0, isFifth ? 12 : 6));
        if (column > 0 && column % (2 * gridStep) == 0)
            drawNumber(painter, column, foot - QPointF(0, 17));
    }
    painter.drawLine(start + QPointF(0, -4), start + QPointF(columns * cellWidth, -4));
}

void drawGrid(QPainter &painter, int columns, const QRectF &rows)
{
    for (int column = 0; column <= columns; column += gridStep) {
        const QPointF top = rows.topLeft() + QPointF(column * cellWidth, 0);
        painter.drawLine(top, top + QPointF(0, rows.height()));
    }
}

/// A broken line down the middle, and an arrow at each end of it.
void drawMiddle(QPainter &painter, const QRectF &rows)
{
    constexpr qreal arrow = 7;
    const qreal x = rows.center().x();
    painter.drawLine(QPointF(x, rows.top()), QPointF(x, rows.bottom()));
    QPolygonF lower;
    lower << QPointF(x, rows.bottom()) << QPointF(x - arrow, rows.bottom() + 1.5 * arrow)
          << QPointF(x + arrow, rows.bottom() + 1.5 * arrow);
    QPainterPath arrows;
    arrows.addPolygon(lower);
    painter.fillPath(arrows, colours::mark);
}

} // namespace

void drawMarks(QPainter &painter, int columns, const QRectF &rows)
{
    painter.save();
    painter.setPen(QPen(colours::grid, 1.5));
    drawGrid(painter, columns, rows);
    painter.setPen(QPen(colours::mark, 1.5));
    drawRuler(painter, columns, rows.topLeft());
    QPen broken(colours::mark, 1.5);
    broken.setDashPattern({6, 5});
    painter.setPen(broken);
    drawMiddle(painter, rows);
    painter.restore();
}
