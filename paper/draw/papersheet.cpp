#include "papersheet.h"

#include "colours.h"
#include "dotdrawing.h"
#include "eventdrawing.h"
#include "marks.h"
#include "rowdrawing.h"
#include "runs.h"
#include "tornedge.h"

using typeface::cellWidth;
using typeface::rowHeight;

namespace {

const paper::Row *rowOf(const Strip::Line &line)
{
    return std::get_if<paper::Row>(&line);
}

const paper::Picture *pictureOf(const Strip::Line &line)
{
    return std::get_if<paper::Picture>(&line);
}

qreal lineHeight(const Strip::Line &line)
{
    if (const paper::Picture *picture = pictureOf(line))
        return picture->height * dotSize;
    return rowOf(line) == nullptr ? eventHeight : heightOf(*rowOf(line));
}

qreal linesHeight(const std::vector<Strip::Line> &lines)
{
    qreal height = 0;
    for (const Strip::Line &line : lines)
        height += lineHeight(line);
    return height;
}

int lineColumns(const Strip::Line &line)
{
    if (const paper::Picture *picture = pictureOf(line))
        return picture->columns();
    return rowOf(line) == nullptr ? 0 : columnsOf(*rowOf(line));
}

} // namespace

QPointF PaperSheet::firstRow(bool marks)
{
    return {margin * cellWidth, tornEdgeDepth + (marks ? rulerHeight : rowHeight)};
}

PaperSheet::PaperSheet(const Strip &toDraw, bool withMarks)
    : strip(toDraw), marks(withMarks),
      paperSize((strip.columns + 2 * margin) * cellWidth,
                firstRow(marks).y() + linesHeight(strip.lines) + rowHeight + tornEdgeDepth)
{
}

qreal PaperSheet::overhang() const
{
    int widest = 0;
    for (const Strip::Line &line : strip.lines)
        widest = std::max(widest, lineColumns(line));
    return std::max(0, widest - strip.columns - margin) * cellWidth;
}

QPainterPath PaperSheet::outline() const
{
    return tornPaper(paperSize);
}

std::vector<QRectF> PaperSheet::lineBoxes() const
{
    std::vector<QRectF> boxes;
    qreal top = firstRow(marks).y();
    for (const Strip::Line &line : strip.lines) {
        boxes.emplace_back(0, top, paperSize.width(), lineHeight(line));
        top += lineHeight(line);
    }
    return boxes;
}

void PaperSheet::draw(QPainter &painter) const
{
    painter.fillPath(outline(), colours::paper);
    painter.strokePath(outline(), QPen(colours::edge, 1));
    if (marks)
        drawMarks(painter, strip.columns,
                  QRectF(firstRow(true), QSizeF(strip.columns * cellWidth, linesHeight(strip.lines))));
    drawLines(painter);
}

void PaperSheet::drawLines(QPainter &painter) const
{
    QPointF corner = firstRow(marks);
    for (const Strip::Line &line : strip.lines) {
        if (const paper::Row *row = rowOf(line))
            drawRow(painter, *row, strip.columns, corner);
        else if (const paper::Picture *picture = pictureOf(line))
            drawDots(painter, *picture, corner);
        else if (const auto *event = std::get_if<paper::Event>(&line))
            drawEvent(painter, *event, corner.y(), paperSize.width());
        else
            drawRemark(painter, std::get<QString>(line), corner.y(), paperSize.width());
        corner.ry() += lineHeight(line);
    }
}
