#include "eventdrawing.h"

#include "colours.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Appearance
{
    paper::Event event;
    QStringView words;
    bool partsPaper; ///< a broken line runs across the paper
};

constexpr std::array appearances{
    Appearance{paper::Event::Cut, u"\u2702  cut", true},
    Appearance{paper::Event::Drawer, u"the cash drawer opens", false},
    Appearance{paper::Event::TearOff, u"tear off here", true},
};

const Appearance &appearanceOf(paper::Event event)
{
    const auto *found = std::ranges::find(appearances, event, &Appearance::event);
    return *found;
}

void drawBrokenLine(QPainter &painter, qreal from, qreal to, qreal y)
{
    QPen pen(colours::caption, 1.5);
    pen.setDashPattern({5, 4});
    pen.setCapStyle(Qt::FlatCap);
    painter.save();
    painter.setPen(pen);
    painter.drawLine(QPointF(from, y), QPointF(to, y));
    painter.restore();
}

/// Draws small type in the middle of the paper; how far it is from either edge.
qreal drawWords(QPainter &painter, const QString &words, qreal middle, qreal paperWidth)
{
    constexpr qreal height = 18;
    const QPainterPath path = typeface::caption(words, height);
    const qreal left = (paperWidth - path.boundingRect().width()) / 2;
    painter.fillPath(path.translated(left, middle + height / 3), colours::caption);
    return left;
}

} // namespace

void drawEvent(QPainter &painter, paper::Event event, qreal top, qreal paperWidth)
{
    constexpr qreal gap = 12;
    const Appearance &appearance = appearanceOf(event);
    const qreal middle = top + eventHeight / 2;
    const qreal left = drawWords(painter, appearance.words.toString(), middle, paperWidth);
    if (!appearance.partsPaper)
        return;
    drawBrokenLine(painter, 0, left - gap, middle);
    drawBrokenLine(painter, paperWidth - left + gap, paperWidth, middle);
}

void drawRemark(QPainter &painter, const QString &remark, qreal top, qreal paperWidth)
{
    drawWords(painter, remark, top + eventHeight / 2, paperWidth);
}
