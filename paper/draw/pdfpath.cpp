#include "pdfpath.h"

#include "pdfobjects.h"

namespace {

QByteArray point(const QPainterPath::Element &element)
{
    return PdfObjects::number(element.x) + ' ' + PdfObjects::number(element.y) + ' ';
}

} // namespace

QByteArray pdfPath(const QPainterPath &path)
{
    QByteArray operators;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        operators += point(element);
        if (element.isMoveTo()) {
            operators += "m\n";
        } else if (element.isLineTo()) {
            operators += "l\n";
        } else { // a curve is followed by its two other points
            operators += point(path.elementAt(i + 1)) + point(path.elementAt(i + 2)) + "c\n";
            i += 2;
        }
    }
    return operators;
}
