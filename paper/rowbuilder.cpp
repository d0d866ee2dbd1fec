#include "rowbuilder.h"

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace paper {

namespace {

constexpr char32_t lineFeed = U'\n';

bool isControl(char32_t character)
{
    return character < 0x20 || (character >= 0x7f && character <= 0x9f);
}

/// What a cell holds for a character: a picture where it has no shape.
char32_t shapeOf(char32_t character)
{
    constexpr char32_t pictures = 0x2400;
    constexpr char32_t pictureOfDelete = 0x2421;
    if (character < 0x20)
        return pictures + character;
    if (character == 0x7f)
        return pictureOfDelete;
    const bool isNone =
        isControl(character) || (character & 0xfffe) == 0xfffe || QChar::isSurrogate(character);
    return isNone ? char32_t(QChar::ReplacementCharacter) : character;
}

} // namespace

RowBuilder::RowBuilder(Painter &rows, FaultSink faults) : painter(rows), onFault(std::move(faults)) {}

void RowBuilder::begin(const TextLine &next)
{
    line = &next;
    place = 0;
    column = 1;
    row.cells.clear(); // and keeps its memory
}

void RowBuilder::addUntil(qsizetype end, bool isQuoted)
{
    while (place < end) {
        const QChar first = line->text.at(place++);
        const bool isPair = first.isHighSurrogate() && place < end && line->text.at(place).isLowSurrogate();
        add(isPair ? QChar::surrogateToUcs4(first, line->text.at(place++)) : first.unicode(), isQuoted);
    }
}

void RowBuilder::skipUntil(qsizetype end)
{
    column += end - place; // quotes and at signs, a code unit each
    place = end;
}

void RowBuilder::addLineBreak()
{
    tell(u"a line break inside a line; the printer may take it for the end of the line"_s);
    row.cells.push_back({shapeOf(lineFeed), {}, true});
}

void RowBuilder::tell(const QString &what) const
{
    onFault({line->number, column, what});
}

void RowBuilder::markLast()
{
    if (!row.cells.empty())
        row.cells.back().isBroken = true;
}

void RowBuilder::markAll()
{
    for (Cell &cell : row.cells)
        cell.isBroken = true;
}

void RowBuilder::finish(const QString &meaning)
{
    row.meaning = meaning;
    painter.row(row);
}

void RowBuilder::add(char32_t character, bool isQuoted)
{
    const QString objection = objectionTo(character, isQuoted);
    if (!objection.isNull())
        tell(objection);
    row.cells.push_back({shapeOf(character), {}, !objection.isNull()});
    ++column;
}

QString RowBuilder::objectionTo(char32_t character, bool isQuoted) const
{
    if (character == U'"' && isQuoted)
        return u"a quote inside a line; the printer takes it for the end of the line"_s;
    if (isControl(character)) {
        const QString number = QString::number(uint(character), 16).toUpper().rightJustified(4, u'0');
        return u"the control character U+%1 inside a line; the printer may take it for a command"_s.arg(
            number);
    }
    if (character == QChar::ReplacementCharacter && line->hasWrongBytes)
        return u"bytes that are no character; the output may be in another encoding"_s;
    return {};
}

QString visible(const QString &text)
{
    QString shapes = text;
    for (QChar &unit : shapes) {
        if (isControl(unit.unicode()))
            unit = QChar(shapeOf(unit.unicode()));
    }
    return shapes;
}

} // namespace paper
