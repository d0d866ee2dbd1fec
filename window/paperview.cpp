#include "paperview.h"

#include "typeface.h"

#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {

constexpr qreal border = 1.5 * typeface::cellWidth;
constexpr qreal gap = typeface::rowHeight;
constexpr int columnPixels = 10; ///< at 100 per cent
constexpr int zoomStep = 20;     ///< per cent

constexpr QColor lightDesk(0xe4, 0xe2, 0xdd);
constexpr QColor darkDesk(0x2a, 0x2c, 0x30);
constexpr QColor marker(0xff, 0xd9, 0x5c);
constexpr QColor markerEdge(0xe0, 0x9a, 0x00);

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightness() < 128;
}

void drawShadow(QPainter &painter, const QRectF &sheet)
{
    constexpr int steps = 6;
    constexpr qreal softness = 3;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 12));
    for (int step = 0; step < steps; ++step) {
        const qreal rim = softness * step;
        painter.drawRoundedRect(sheet.translated(0, 4).adjusted(-rim, -rim, rim, rim), rim, rim);
    }
}

/// As a felt pen does: the letters stay black.
void drawMarker(QPainter &painter, const QRectF &row)
{
    constexpr qreal edge = 6;
    painter.save();
    painter.setCompositionMode(QPainter::CompositionMode_Multiply);
    painter.fillRect(row, marker);
    painter.restore();
    painter.fillRect(QRectF(row.topLeft(), QSizeF(edge, row.height())), markerEdge);
}

} // namespace

PaperView::PaperView(QWidget *parent) : QAbstractScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setAccessibleName(tr("Paper"));
    setFocusPolicy(Qt::StrongFocus);
    verticalScrollBar()->setSingleStep(20);
    horizontalScrollBar()->setSingleStep(20);
}

void PaperView::showStrips(std::vector<Strip> newStrips)
{
    places.clear(); // its sheets speak of the old strips
    shown = std::move(newStrips);
    marked.clear();
    message.clear();
    setAccessibleDescription(textOf(shown));
    layOut();
    Q_EMIT zoomChanged(); // paper of another width fits otherwise
}

void PaperView::showMessage(const QString &text)
{
    showStrips({});
    message = text;
    setAccessibleDescription(text);
}

void PaperView::highlight(const std::set<LinePlace> &rows)
{
    if (rows == marked)
        return;
    marked = rows;
    scrollToHighlight();
    viewport()->update();
}

void PaperView::layOut()
{
    qreal top = border;
    qreal right = 0;
    for (const Strip &strip : shown) {
        places.push_back({sheetOf(strip, false), QPointF(border, top)});
        const Sheet &sheet = *places.back().sheet;
        top += sheet.size().height() + gap;
        right = std::max(right, border + sheet.size().width() + sheet.overhang());
    }
    deskSize = {right + border, top - gap + border};
    updateScrollBars();
    viewport()->update();
}

qreal PaperView::scale() const
{
    constexpr qreal least = 0.5; // smaller could not be read: then the paper is scrolled
    constexpr qreal most = 1.6;  // larger would look like a poster
    const qreal whole = columnPixels / typeface::cellWidth;
    if (chosenZoom > 0)
        return chosenZoom * whole / 100;
    const int room = width() - verticalScrollBar()->sizeHint().width(); // whether it is there now or not
    return std::clamp(deskSize.width() > 0 ? room / deskSize.width() : whole, least * whole, most * whole);
}

int PaperView::zoom() const
{
    return int(std::lround(scale() * typeface::cellWidth / columnPixels * 100));
}

void PaperView::setZoom(int percent)
{
    chosenZoom = percent == 0 ? 0 : std::clamp(percent, leastZoom, mostZoom);
    updateScrollBars();
    viewport()->update();
    Q_EMIT zoomChanged();
}

void PaperView::zoomBy(int steps)
{
    setZoom(zoom() + steps * zoomStep);
}

void PaperView::updateScrollBars()
{
    const QSizeF size = deskSize * scale();
    const QSize room = viewport()->size();
    verticalScrollBar()->setPageStep(room.height());
    verticalScrollBar()->setRange(0, std::max(0, int(std::ceil(size.height())) - room.height()));
    horizontalScrollBar()->setPageStep(room.width());
    horizontalScrollBar()->setRange(0, std::max(0, int(std::ceil(size.width() - 1)) - room.width()));
}

QPointF PaperView::origin() const
{
    const qreal spare = viewport()->width() - deskSize.width() * scale();
    return {std::max<qreal>(0, spare / 2) - horizontalScrollBar()->value(),
            qreal(-verticalScrollBar()->value())};
}

void PaperView::scrollToHighlight()
{
    if (marked.empty() || marked.begin()->first >= places.size())
        return;
    const Place &place = places[marked.begin()->first];
    const QRectF box = place.sheet->lineBoxes().at(marked.begin()->second);
    const int top = int((place.corner.y() + box.top()) * scale());
    const int seen = verticalScrollBar()->value();
    const int margin = int(2 * box.height() * scale());
    if (top < seen + margin || top + margin > seen + viewport()->height())
        verticalScrollBar()->setValue(top - viewport()->height() / 3);
}

void PaperView::paintEvent(QPaintEvent *)
{
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(viewport()->rect(), isDark(palette()) ? darkDesk : lightDesk);
    if (!message.isEmpty()) {
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(viewport()->rect().adjusted(24, 24, -24, -24), Qt::AlignCenter | Qt::TextWordWrap,
                         message);
        return;
    }
    painter.translate(origin());
    painter.scale(scale(), scale());
    for (size_t strip = 0; strip < places.size(); ++strip)
        drawPlace(painter, strip);
}

void PaperView::drawPlace(QPainter &painter, size_t strip) const
{
    const Place &place = places[strip];
    painter.save();
    painter.translate(place.corner);
    drawShadow(painter, place.sheet->outline().boundingRect());
    place.sheet->draw(painter);
    const std::vector<QRectF> boxes = place.sheet->lineBoxes();
    for (const LinePlace &row : marked) {
        if (row.first == strip && row.second < boxes.size())
            drawMarker(painter, boxes[row.second]);
    }
    painter.restore();
}

void PaperView::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    updateScrollBars();
    Q_EMIT zoomChanged();
}

void PaperView::wheelEvent(QWheelEvent *event)
{
    if (event->modifiers() & Qt::ControlModifier)
        zoomBy(event->angleDelta().y() > 0 ? 1 : -1);
    else
        QAbstractScrollArea::wheelEvent(event);
}

QSize PaperView::sizeHint() const
{
    return {420, 600};
}
