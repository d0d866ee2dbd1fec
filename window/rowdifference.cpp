#include "rowdifference.h"

#include <QStringList>

namespace {

constexpr size_t most = 600; // rows; the comparison takes the square of it

struct PlacedRow
{
    LinePlace place;
    QString text;
};

QString textOf(const paper::Row &row)
{
    QString text;
    for (const paper::Cell &cell : row.cells)
        text += QString::fromUcs4(&cell.character, 1);
    return text;
}

std::vector<PlacedRow> rowsOf(const std::vector<Strip> &strips)
{
    std::vector<PlacedRow> rows;
    for (size_t strip = 0; strip < strips.size(); ++strip) {
        for (size_t line = 0; line < strips[strip].lines.size(); ++line) {
            if (const auto *row = std::get_if<paper::Row>(&strips[strip].lines[line]))
                rows.push_back({{strip, line}, textOf(*row)});
        }
    }
    return rows;
}

/// How many rows the ends of both have in common, at most: from the row of `one` and the row of `other` on.
using Lengths = std::vector<std::vector<int>>;

Lengths commonLengths(const std::vector<PlacedRow> &one, const std::vector<PlacedRow> &other)
{
    Lengths lengths(one.size() + 1, std::vector<int>(other.size() + 1, 0));
    for (size_t i = one.size(); i-- > 0;) {
        for (size_t j = other.size(); j-- > 0;) {
            lengths[i][j] = one[i].text == other[j].text ? lengths[i + 1][j + 1] + 1
                                                         : std::max(lengths[i + 1][j], lengths[i][j + 1]);
        }
    }
    return lengths;
}

} // namespace

std::set<LinePlace> rowsMissingIn(const std::vector<Strip> &others, const std::vector<Strip> &strips)
{
    const std::vector<PlacedRow> rows = rowsOf(strips);
    const std::vector<PlacedRow> otherRows = rowsOf(others);
    std::set<LinePlace> missing;
    if (rows.size() > most || otherRows.size() > most)
        return missing;
    const Lengths lengths = commonLengths(rows, otherRows);
    size_t j = 0;
    for (size_t i = 0; i < rows.size(); ++i) {
        while (j < otherRows.size() && lengths[i][j] == lengths[i][j + 1] &&
               rows[i].text != otherRows[j].text)
            ++j;
        if (j < otherRows.size() && rows[i].text == otherRows[j].text)
            ++j;
        else
            missing.insert(rows[i].place);
    }
    return missing;
}

QString textOf(const std::vector<Strip> &strips)
{
    QStringList texts;
    for (const Strip &strip : strips) {
        QString text;
        for (const Strip::Line &line : strip.lines) {
            if (const auto *row = std::get_if<paper::Row>(&line))
                text += textOf(*row) + u'\n';
        }
        texts += text;
    }
    return texts.join(u'\n');
}
