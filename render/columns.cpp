#include "columns.h"

namespace columns {

namespace {

bool isPairAt(QStringView text, qsizetype index)
{
    return text[index].isHighSurrogate() && index + 1 < text.size() && text[index + 1].isLowSurrogate();
}

qsizetype missing(const QString &text, int width)
{
    if (width < 0 || width > maxWidth)
        return 0;
    return qMax<qsizetype>(0, width - length(text));
}

} // namespace

qsizetype length(QStringView text)
{
    qsizetype characters = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (isPairAt(text, i))
            ++i;
        ++characters;
    }
    return characters;
}

QString leftJustified(const QString &text, int width, QChar fill)
{
    return text + QString(missing(text, width), fill);
}

QString rightJustified(const QString &text, int width, QChar fill)
{
    return QString(missing(text, width), fill) + text;
}

QString cut(const QString &text, int width)
{
    if (width < 0 || width >= text.size())
        return text;
    qsizetype units = 0;
    for (int characters = 0; characters < width && units < text.size(); ++characters)
        units += isPairAt(text, units) ? 2 : 1;
    return text.left(units);
}

} // namespace columns
