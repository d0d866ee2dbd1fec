#include "colours.h"
#include "colourtable.h"
#include "commanderror.h"
#include "picture.h"
#include "picturelimits.h"
#include "table.h"
#include "typeface.h"

#include <QBuffer>
#include <QImage>
#include <QImageWriter>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int columnPixels = 10; // at scale 1

void requireRoom(QSize size)
{
    if (qMax(size.width(), size.height()) <= limits::pixels &&
        qint64(size.width()) * size.height() <= limits::allPixels)
        return;
    throw CommandError(
        ExitCode::TooLarge,
        u"the picture would be %1 pixels wide and %2 high, and a PNG is at most %3 in either and %4 "
        u"in all; use --format pdf, svg or txt, or a smaller --scale"_s.arg(size.width())
            .arg(size.height())
            .arg(limits::pixels)
            .arg(limits::allPixels));
}

QByteArray written(QImage image, const QString &title)
{
    constexpr int dotsPerMetre = 7874; // 200 to the inch, about those of a receipt printer
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    if (!title.isEmpty())
        image.setText(u"Title"_s, title);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, "png");
    if (!writer.write(image))
        throw CommandError(ExitCode::WriteFailed, u"no PNG can be made: "_s + writer.errorString());
    return bytes;
}

} // namespace

QByteArray pngPicture(const std::vector<Strip> &strips, const PictureOptions &options)
{
    const Table table(strips, options.marks);
    const qreal scale = options.scale * columnPixels / typeface::cellWidth;
    const QSize size = (table.size() * scale).toSize();
    requireRoom(size);
    QImage image(size, QImage::Format_RGB32);
    image.fill(colours::table);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    table.draw(painter);
    painter.end();
    return written(withColourTable(image), options.title);
}
