#include "registersheet.h"

#include "colours.h"
#include "registerwords.h"
#include "rowdrawing.h"
#include "runs.h"

#include <limits>

using namespace Qt::Literals::StringLiterals;
using typeface::cellWidth;
using typeface::rowHeight;

namespace {

constexpr qreal captionHeight = 25;
constexpr qreal gap = 3 * cellWidth; ///< between a command and its meaning
constexpr qreal remarkGap = 1.3 * rowHeight;

QString remarksOf(const Strip &strip)
{
    QStringList remarks;
    for (const Strip::Line &line : strip.lines) {
        if (const auto *remark = std::get_if<QString>(&line))
            remarks += *remark;
    }
    return remarks.join(u' ');
}

} // namespace

QPointF RegisterSheet::firstRow()
{
    constexpr qreal headHeight = 1.9 * rowHeight;
    return {margin * cellWidth, headHeight + (pitch - rowHeight) / 2};
}

RegisterSheet::RegisterSheet(const Strip &toDraw) : strip(toDraw)
{
    for (const Strip::Line &line : toDraw.lines) {
        if (const auto *row = std::get_if<paper::Row>(&line))
            commands.push_back({row, typeface::caption(row->meaning, captionHeight)});
    }
    measure();
    const qreal width = cardSize.width() - 2 * firstRow().x();
    remarks = typeface::wrappedCaption(remarksOf(toDraw), captionHeight, width, true);
    remarks.translate(firstRow().x(), cardSize.height() + remarkGap);
    if (!remarks.isEmpty())
        cardSize.rheight() = remarks.boundingRect().bottom();
    cardSize.rheight() += rowHeight;
}

/// How wide the card has to be for the commands and their meaning, and how high.
void RegisterSheet::measure()
{
    constexpr qreal leastWidth = 44 * cellWidth;
    int columns = 0;
    qreal meaningWidth = 0;
    for (const Command &command : commands) {
        columns = std::max(columns, columnsOf(*command.row));
        meaningWidth = std::max(meaningWidth, command.meaning.boundingRect().right());
    }
    meaningLeft = firstRow().x() + columns * cellWidth + gap;
    cardSize = {std::max(leastWidth, meaningLeft + meaningWidth + margin * cellWidth),
                firstRow().y() + double(commands.size()) * pitch};
}

QPainterPath RegisterSheet::outline() const
{
    constexpr qreal radius = 14;
    QPainterPath path;
    path.addRoundedRect(QRectF(QPointF(0, 0), cardSize), radius, radius);
    return path;
}

std::vector<QRectF> RegisterSheet::lineBoxes() const
{
    std::vector<QRectF> boxes;
    qreal top = firstRow().y();
    for (const Strip::Line &line : strip.lines) {
        const bool isCommand = std::holds_alternative<paper::Row>(line);
        boxes.push_back(isCommand ? QRectF(0, top, cardSize.width(), rowHeight) : QRectF());
        top += isCommand ? pitch : 0;
    }
    return boxes;
}

void RegisterSheet::draw(QPainter &painter) const
{
    painter.fillPath(outline(), colours::paper);
    painter.strokePath(outline(), QPen(colours::edge, 1));
    painter.fillPath(typeface::caption(paper::RegisterWords::tr("To the cash register"), captionHeight, true)
                         .translated(firstRow().x(), 1.2 * rowHeight),
                     colours::caption);
    qreal top = firstRow().y();
    for (const Command &command : commands) {
        drawCommand(painter, command, top);
        top += pitch;
    }
    drawRule(painter, top, 2, colours::ink);
    painter.fillPath(remarks, colours::ink);
}

void RegisterSheet::drawCommand(QPainter &painter, const Command &command, qreal top) const
{
    drawRule(painter, top, 1, colours::rule);
    drawRow(painter, *command.row, std::numeric_limits<int>::max(), QPointF(firstRow().x(), top));
    painter.fillPath(command.meaning.translated(meaningLeft, top + typeface::baseline), colours::caption);
}

/// Above a command that begins at `top`.
void RegisterSheet::drawRule(QPainter &painter, qreal top, qreal thickness, QColor colour) const
{
    const qreal left = firstRow().x();
    const qreal y = top - (pitch - rowHeight) / 2;
    painter.fillRect(QRectF(left, y, cardSize.width() - 2 * left, thickness), colour);
}
