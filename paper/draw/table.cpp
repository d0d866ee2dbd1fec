#include "table.h"

#include "colours.h"
#include "typeface.h"

namespace {

// Whole columns and halves of them, so that all cells of a PNG are the same whole pixels.
constexpr qreal border = 1.5 * typeface::cellWidth; ///< of the table around the sheets
constexpr qreal gap = typeface::rowHeight;          ///< between the sheets

/// The colour that is `share` of the way from one to another.
QColor between(QColor from, QColor to, qreal share)
{
    const auto mix = [share](int one, int other) { return qRound(one + (other - one) * share); };
    return {mix(from.red(), to.red()), mix(from.green(), to.green()), mix(from.blue(), to.blue())};
}

} // namespace

Table::Table(const std::vector<Strip> &strips, bool marks)
{
    qreal top = border;
    qreal right = 0;
    for (const Strip &strip : strips) {
        places.push_back({sheetOf(strip, marks), QPointF(border, top)});
        const Sheet &sheet = *places.back().sheet;
        top += sheet.size().height() + gap;
        right = std::max(right, border + sheet.size().width() + sheet.overhang());
    }
    tableSize = {right + border, top - gap + border};
}

void Table::draw(QPainter &painter) const
{
    painter.fillRect(QRectF(QPointF(0, 0), tableSize), colours::table);
    for (const Place &place : places) {
        painter.save();
        painter.translate(place.corner);
        drawShadow(painter, place.sheet->outline().boundingRect());
        place.sheet->draw(painter);
        painter.restore();
    }
}

/// Soft at its rim: one sheet under another, each a little smaller and darker.
void Table::drawShadow(QPainter &painter, const QRectF &sheet)
{
    constexpr int steps = 6;
    constexpr qreal softness = 3; ///< how far each reaches beyond the next
    const QRectF shadow = sheet.translated(2, 5);
    painter.setPen(Qt::NoPen);
    for (int step = 1; step <= steps; ++step) {
        const qreal rim = softness * (steps - step);
        painter.setBrush(between(colours::table, colours::shadow, qreal(step) / steps));
        painter.drawRoundedRect(shadow.adjusted(-rim, -rim, rim, rim), rim, rim);
    }
}
