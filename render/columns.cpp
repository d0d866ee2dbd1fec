#include "columns.h"

namespace columns {

namespace {

bool isPairAt(QStringView text, qsizetype index)
{
    return text[index].isHighSurrogate() && index + 1 < text.size() && text[index + 1].isLowSurrogate();
}

qsizetype missing(QStringView text, int width)
{
    if (width < 0 || width > maxWidth)
        return 0;
    return qMax<qsizetype>(0, width - length(text));
}

QStringView firstCharacters(QStringView text, int width)
{
    if (width < 0 || width >= text.size())
        return text;
    qsizetype units = 0;
    for (int characters = 0; characters < width && units < text.size(); ++characters)
        units += isPairAt(text, units) ? 2 : 1;
    return text.first(units);
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
    return Row().leftJustified(text, width, fill).toString();
}

QString rightJustified(const QString &text, int width, QChar fill)
{
    return Row().rightJustified(text, width, fill).toString();
}

QString cut(const QString &text, int width)
{
    return text.left(firstCharacters(text, width).size());
}

Row &Row::text(QStringView piece)
{
    row += piece;
    return *this;
}

Row &Row::leftJustified(QStringView piece, int width, QChar fill)
{
    row += piece;
    row.resize(row.size() + missing(piece, width), fill);
    return *this;
}

Row &Row::rightJustified(QStringView piece, int width, QChar fill)
{
    row.resize(row.size() + missing(piece, width), fill);
    row += piece;
    return *this;
}

Row &Row::cut(QStringView piece, int width, QChar fill)
{
    return leftJustified(firstCharacters(piece, width), width, fill);
}

} // namespace columns
