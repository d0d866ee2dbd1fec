#include "pdfpage.h"

#include "pdfpath.h"

#include <QPaintEngine>
#include <QPainterPath>
#include <QPen>

#include <cmath>

namespace {

/// The operands of a colour.
QByteArray operands(const QColor &colour)
{
    return PdfObjects::number(colour.redF()) + ' ' + PdfObjects::number(colour.greenF()) + ' ' +
           PdfObjects::number(colour.blueF());
}

QByteArray operands(const QTransform &transform)
{
    QByteArray text;
    for (const qreal value : {transform.m11(), transform.m12(), transform.m21(), transform.m22()})
        text += QByteArray::number(value, 'f', 6) + ' ';
    return text + PdfObjects::number(transform.dx()) + ' ' + PdfObjects::number(transform.dy());
}

} // namespace

/// Turns what the painter draws into the page's operators, in the page's own unit.
class PdfPage::Engine : public QPaintEngine
{
public:
    Engine(PdfDocument &to, QSizeF pageSize) : QPaintEngine(AllFeatures), document(to), size(pageSize) {}

    bool begin(QPaintDevice *) override
    {
        // The document's origin is the lower left corner.
        content = "1 0 0 -1 0 " + PdfObjects::number(size.height()) + " cm\n";
        return true;
    }
    bool end() override
    {
        document.addPage(size, content);
        return true;
    }
    void updateState(const QPaintEngineState &) override {} // each operation takes it as it is then
    void drawPath(const QPainterPath &path) override
    {
        const QByteArray operators = pdfPath(state->transform().map(path));
        if (state->brush().style() != Qt::NoBrush)
            content += operands(state->brush().color()) + " rg\n" + operators +
                       (path.fillRule() == Qt::WindingFill ? "f\n" : "f*\n");
        if (state->pen().style() != Qt::NoPen)
            content += penOperators() + operators + "S\n";
    }
    void drawPolygon(const QPointF *points, int count, PolygonDrawMode mode) override
    {
        QPainterPath path;
        path.addPolygon(QPolygonF(QList<QPointF>(points, points + count)));
        if (mode != PolylineMode)
            path.closeSubpath();
        drawPath(path);
    }
    void drawTextItem(const QPointF &start, const QTextItem &item) override
    {
        const QTransform upright(1, 0, 0, -1, start.x(), start.y());
        content += "BT " + operands(state->pen().color()) + " rg " + operands(upright * state->transform()) +
                   " Tm " + document.characters().show(item.text(), item.font()) + " ET\n";
    }
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {} // no picture has one
    Type type() const override { return User; }

private:
    QByteArray penOperators() const
    {
        const QPen pen = state->pen();
        const double unit = std::sqrt(std::abs(state->transform().determinant())) * pen.widthF();
        QByteArray dashes;
        for (const qreal dash : pen.dashPattern())
            dashes += PdfObjects::number(dash * unit) + ' ';
        return operands(pen.color()) + " RG " + PdfObjects::number(unit) + " w [" + dashes + "] 0 d " +
               (pen.capStyle() == Qt::FlatCap ? "0" : "2") + " J\n";
    }

    PdfDocument &document;
    QSizeF size;
    QByteArray content;
};

PdfPage::PdfPage(PdfDocument &document, QSizeF size)
    : pageSize(size), engine(std::make_unique<Engine>(document, size))
{
}

PdfPage::~PdfPage() = default;

QPaintEngine *PdfPage::paintEngine() const
{
    return engine.get();
}

int PdfPage::metric(PaintDeviceMetric what) const
{
    constexpr int pointsOfInch = 72;
    constexpr double millimetresOfInch = 25.4;
    switch (what) {
    case PdmWidth:
        return qCeil(pageSize.width());
    case PdmHeight:
        return qCeil(pageSize.height());
    case PdmWidthMM:
        return qCeil(pageSize.width() / pointsOfInch * millimetresOfInch);
    case PdmHeightMM:
        return qCeil(pageSize.height() / pointsOfInch * millimetresOfInch);
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
        return pointsOfInch;
    case PdmDevicePixelRatioScaled:
        return int(devicePixelRatioFScale());
    default: // one device pixel a pixel
        return 1;
    }
}
