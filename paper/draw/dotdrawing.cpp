#include "dotdrawing.h"

#include "colours.h"

namespace {

/// Adds the black dots of one row, each run of them as one box.
void addRow(QPainterPath &path, const paper::Picture &picture, int y)
{
    for (int x = 0; x < picture.width; ++x) {
        const int start = x;
        while (picture.isBlack(x, y))
            ++x;
        if (x > start)
            path.addRect(start, y, x - start, 1);
    }
}

} // namespace

void drawDots(QPainter &painter, const paper::Picture &picture, QPointF corner)
{
    // One path, in which dots that touch leave no seam.
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    for (int y = 0; y < picture.height; ++y)
        addRow(path, picture, y);
    painter.save();
    painter.translate(corner + QPointF(picture.left * dotSize, 0));
    painter.scale(dotSize, dotSize);
    painter.fillPath(path, colours::ink);
    painter.restore();
}
