#include "wordwrap.h"

#include "paper.h"

namespace paper {

namespace {

/// Code units of the longest beginning that takes at most `width` columns; one character at least.
qsizetype lengthWithin(QStringView text, int width)
{
    qsizetype length = 0;
    for (int columns = 0; length < text.size();) {
        const bool isPair = text.at(length).isHighSurrogate() && length + 1 < text.size();
        const char32_t character =
            isPair ? QChar::surrogateToUcs4(text.at(length), text.at(length + 1)) : text.at(length).unicode();
        columns += columnsOf(character);
        if (columns > width && length > 0)
            break;
        length += isPair ? 2 : 1;
    }
    return length;
}

} // namespace

QStringList wrapped(const QString &text, int width)
{
    QStringList lines;
    QStringView rest = text;
    for (qsizetype length; width > 0 && (length = lengthWithin(rest, width)) < rest.size();) {
        const qsizetype blank = rest.first(length + 1).lastIndexOf(u' ');
        const bool isBetweenWords = blank > 0;
        if (isBetweenWords)
            length = blank;
        lines += rest.first(length).toString();
        rest = rest.sliced(length + (isBetweenWords ? 1 : 0));
    }
    lines += rest.toString();
    return lines;
}

} // namespace paper
