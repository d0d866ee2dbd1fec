#include "rowdrawing.h"

#include "colours.h"
#include "runs.h"
#include "typeface.h"

using typeface::cellWidth;
using typeface::rowHeight;

namespace {

/// One stretch of a row, and where it stands.
class RunDrawing
{
public:
    RunDrawing(QPainter &to, const Run &toDraw, QPointF rowCorner, qreal height)
        : painter(to), run(toDraw), bottom(rowCorner.y() + height),
          left(rowCorner.x() + run.column * cellWidth)
    {
    }

    void draw()
    {
        const qreal height = run.style.doubleHeight ? 2 * rowHeight : rowHeight;
        const QRectF box(left, bottom - height, run.columns * cellWidth, height);
        if (ground() != colours::paper)
            painter.fillRect(box, ground());
        drawText(box.topLeft());
        if (run.style.underlined)
            underline(box);
        if (run.isBroken)
            drawWave(box);
    }

private:
    QColor plainInk() const { return run.isOver ? colours::overInk : colours::ink; }
    QColor plainGround() const
    {
        if (run.isBroken)
            return colours::brokenPaper;
        return run.isOver ? colours::overPaper : colours::paper;
    }
    QColor ink() const { return run.style.inverse ? plainGround() : plainInk(); }
    QColor ground() const { return run.style.inverse ? plainInk() : plainGround(); }

    void drawText(QPointF corner)
    {
        const QPointF start(0, typeface::baseline);
        painter.save();
        painter.setFont(typeface::rows(run.style.bold));
        painter.setPen(ink());
        if (run.style.doubleWidth || run.style.doubleHeight) {
            painter.translate(corner);
            painter.scale(run.style.doubleWidth ? 2 : 1, run.style.doubleHeight ? 2 : 1);
            painter.drawText(start, run.text);
        } else {
            painter.drawText(corner + start, run.text);
        }
        painter.restore();
    }
    void underline(const QRectF &box)
    {
        constexpr qreal thickness = 2;
        const qreal height = box.height() / rowHeight * thickness;
        painter.fillRect(QRectF(box.left(), box.bottom() - 2 * height, box.width(), height), ink());
    }
    /// As editors mark an error.
    void drawWave(const QRectF &box)
    {
        constexpr qreal amplitude = 3;
        QPainterPath wave(QPointF(box.left(), box.bottom() - amplitude));
        const int halves = 4 * run.columns;
        const qreal step = box.width() / halves;
        for (int half = 0; half < halves; ++half)
            wave.lineTo(box.left() + (half + 1) * step,
                        box.bottom() - (half % 2 == 0 ? 2 : 1) * amplitude + 2);
        painter.strokePath(wave, QPen(colours::overInk, 2));
    }

    QPainter &painter;
    const Run &run;
    qreal bottom;
    qreal left;
};

/// A broken line at the paper's edge, over which the row runs.
void drawEdge(QPainter &painter, QPointF top, qreal height)
{
    QPen pen(colours::overInk, 1.5);
    pen.setCapStyle(Qt::FlatCap);
    pen.setDashPattern({3, 3});
    painter.save();
    painter.setPen(pen);
    painter.drawLine(top, top + QPointF(0, height));
    painter.restore();
}

void drawUsualRow(QPainter &painter, const paper::Row &row, int paperColumns, QPointF corner)
{
    const qreal height = heightOf(row);
    const std::vector<Run> runs = runsOf(row, paperColumns);
    for (const Run &run : runs)
        RunDrawing(painter, run, corner, height).draw();
    if (!runs.empty() && runs.back().isOver)
        drawEdge(painter, corner + QPointF(paperColumns * cellWidth, 0), height);
}

} // namespace

qreal heightOf(const paper::Row &row)
{
    const auto isHigh = [](const paper::Cell &cell) { return cell.style.doubleHeight; };
    return std::ranges::any_of(row.cells, isHigh) ? 2 * rowHeight : rowHeight;
}

void drawRow(QPainter &painter, const paper::Row &row, int paperColumns, QPointF corner)
{
    if (!row.isNarrow)
        return drawUsualRow(painter, row, paperColumns, corner);
    painter.save();
    painter.translate(corner);
    painter.scale(0.75, 1);
    drawUsualRow(painter, row, paper::narrowColumns(paperColumns), {});
    painter.restore();
}
