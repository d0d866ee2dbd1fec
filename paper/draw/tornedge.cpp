#include "tornedge.h"

namespace {

constexpr qreal toothWidth = 11;

/// Irregular as paper tears, and the same every time: a number from 0 to 1 for each tooth.
qreal irregularity(uint tooth)
{
    constexpr uint multiplier = 2654435761U; // scatters consecutive numbers over all 32 bits
    constexpr qreal range = 1U << 16U;
    return ((tooth + 1) * multiplier >> 16U) / range;
}

/// Adds the points of an edge from the left: a tip and a notch for each tooth.
void addEdge(QPolygonF &points, qreal width, uint firstTooth)
{
    const uint teeth = std::max(1U, uint(width / toothWidth));
    const qreal pitch = width / teeth;
    for (uint tooth = 0; tooth < teeth; ++tooth) {
        const qreal deep = tornEdgeDepth * (0.65 + 0.35 * irregularity(firstTooth + tooth));
        const qreal shallow = tornEdgeDepth * 0.15 * irregularity(firstTooth + tooth + teeth);
        points << QPointF(tooth * pitch, deep) << QPointF((tooth + 0.5) * pitch, shallow);
    }
    points << QPointF(width, tornEdgeDepth * 0.8);
}

} // namespace

QPainterPath tornPaper(QSizeF size)
{
    constexpr uint lowerTeeth = 1000; // as irregular as the upper ones, and in another way
    QPolygonF upper;
    QPolygonF lower;
    addEdge(upper, size.width(), 0);
    addEdge(lower, size.width(), lowerTeeth);
    QPainterPath path;
    path.addPolygon(upper);
    for (auto point = lower.crbegin(); point != lower.crend(); ++point)
        path.lineTo(point->x(), size.height() - point->y());
    path.closeSubpath();
    return path;
}
