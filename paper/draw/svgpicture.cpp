#include "picture.h"
#include "rowbuilder.h"
#include "table.h"
#include "typeface.h"

#include <QBuffer>
#include <QSvgGenerator>

using namespace Qt::Literals::StringLiterals;

QByteArray svgPicture(const std::vector<Strip> &strips, const PictureOptions &options)
{
    const Table table(strips, options.marks);
    const qreal scale = options.scale * 10 / typeface::cellWidth;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setResolution(96); // a pixel of browsers
    generator.setSize((table.size() * scale).toSize());
    generator.setViewBox(QRectF(QPointF(0, 0), table.size()));
    generator.setTitle(paper::visible(options.title).toHtmlEscaped());
    QPainter painter(&generator);
    table.draw(painter);
    painter.end();
    return bytes.replace("font-family=\"DejaVu Sans Mono\"", "font-family=\"DejaVu Sans Mono, monospace\"");
}
