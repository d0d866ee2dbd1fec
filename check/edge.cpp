#include "edge.h"

#include "paper.h"
#include "unprintable.h"

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace check {

namespace {

/// Columns that a character takes; one that the encoding lacks is printed as a "?".
int columnsOf(char32_t character, const LocaleEncoding &encoding)
{
    const int columns = paper::columnsOf(character);
    return columns != 1 && isLossy(encoding, QString::fromUcs4(&character, 1)) ? 1 : columns;
}

/// Columns of the paper that have ink on them, blanks at the end left out.
int widthOf(QStringView row, const LocaleEncoding &encoding)
{
    while (row.endsWith(u' '))
        row.chop(1);
    if (std::ranges::all_of(row, [](QChar character) { return character < u'\x7f'; }))
        return int(row.size());
    int width = 0;
    for (const char32_t character : row.toUcs4())
        width += columnsOf(character, encoding);
    return width;
}

/// No character takes more than two columns, so most rows need not be looked at.
bool mayBeWiderThan(const QString &row, int paperWidth)
{
    return row.size() > paperWidth / 2;
}

/// How much the attribute has to do with the width of a row in which it stands whole: one that is not cut
/// where its column ends more than one that is, a longer more than a shorter. Nothing below all others.
std::pair<int, qsizetype> weightOf(const JobElement &element, int number, const QString &row)
{
    const QString text = element.attributes.value(number);
    const vocabulary::Attribute *reader = element.readerOf(number);
    if (!reader || text.isEmpty() || !row.contains(text))
        return {-1, 0};
    return {reader->type == vocabulary::Description ? 0 : 1, text.size()};
}

/// The attribute that makes a row as wide as it is; -1 when none does.
int widest(const JobElement &element, const QString &row)
{
    int best = -1;
    std::pair<int, qsizetype> most{-1, 0};
    for (int number = 0; number < element.attributes.count(); ++number) {
        const auto weight = weightOf(element, number, row);
        if (weight <= most)
            continue;
        most = weight;
        best = number;
    }
    return best;
}

Finding tooWide(const JobElement &element, const QString &row, int width)
{
    const int number = element.isCrowded() ? -1 : widest(element, row);
    return {named("over-the-edge"), number < 0 ? element.tag.place() : element.tag.valueOf(number),
            u"the row %1 is %2 wide, and the paper %3"_s.arg(quoted(row), QString::number(width),
                                                             QString::number(element.settings.paperWidth)),
            number < 0 ? u"it is the layout: give the paper more width, or its columns less"_s
                       : u"shorten the text, or give its column and the paper more width"_s};
}

} // namespace

void checkEdge(const JobElement &element, const LocaleEncoding &encoding, FindingSink &sink)
{
    if (element.isCommand)
        return;
    const int paperWidth = element.settings.paperWidth;
    for (const QString &row : element.rows) {
        const int width = mayBeWiderThan(row, paperWidth) ? widthOf(row, encoding) : 0;
        if (width > paperWidth)
            sink.take(tooWide(element, row, width));
    }
}

} // namespace check
