#include "terminalpainter.h"

#include "wordwrap.h"

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace paper {

struct TerminalPainter::Glyphs
{
    char32_t horizontal;
    char32_t vertical;
    char32_t topLeft;
    char32_t topRight;
    char32_t bottomLeft;
    char32_t bottomRight;
    char32_t leftTee;
    char32_t rightTee;
    char32_t over;  ///< in the place of the edge, in front of what runs over it
    char32_t blank; ///< where blanks are shown
};

namespace {

constexpr int margin = 2;        // columns in front of the frame
constexpr int leastMeaning = 20; // columns beside a command; with fewer its meaning goes below
constexpr int meaningIndent = 4; // there
constexpr int defaultWidth = 32; // of the printer itself

constexpr auto lookOfFrame = ";2";
constexpr auto lookOfMeaning = ";36";
constexpr auto lookOfTitle = ";1";

constexpr auto registerTitle = "to the cash register"_L1;

bool isBroken(const Row &row)
{
    return std::ranges::any_of(row.cells, &Cell::isBroken);
}

int columnsOf(const Cell &cell)
{
    return paper::columnsOf(cell.character) * (cell.style.doubleWidth ? 2 : 1);
}

std::string lookOf(const Cell &cell, bool isOver)
{
    if (cell.isBroken)
        return ";97;41";
    std::string look = isOver ? ";31" : "";
    if (cell.style.bold || cell.style.doubleHeight)
        look += ";1";
    if (cell.style.underlined)
        look += ";4";
    if (cell.style.inverse)
        look += ";7";
    return look;
}

QLatin1StringView nameOf(Event event)
{
    switch (event) {
    case Event::Cut:
        return "cut"_L1;
    case Event::Drawer:
        return "the cash drawer opens"_L1;
    case Event::TearOff:
        break;
    }
    return "tear off here"_L1;
}

} // namespace

TerminalPainter::TerminalPainter(std::ostream &output, const Screen &screen, bool blanks)
    : out(output, screen), glyphs([this]() -> const Glyphs & {
          static constexpr Glyphs lines{U'─', U'│', U'┌', U'┐', U'└', U'┘', U'├', U'┤', U'»', U'·'};
          static constexpr Glyphs ascii{U'-', U'|', U'+', U'+', U'+', U'+', U'+', U'+', U'>', U'.'};
          return out.isUnicode() ? lines : ascii;
      }()),
      screenColumns(screen.columns), hasColors(screen.hasColors), showsBlanks(blanks)
{
}

void TerminalPainter::setWidths(std::vector<int> ofStrips)
{
    widths = std::move(ofStrips);
    strip = 0;
}

void TerminalPainter::title(const QString &text)
{
    separate();
    out.look(lookOfTitle);
    out.put(text);
    out.endLine();
    isFirst = true;
}

void TerminalPainter::beginStrip(StripKind kind)
{
    isPaper = kind == StripKind::Paper;
    width = isPaper && !widths.empty() ? widths.at(std::min(strip, widths.size() - 1)) : defaultWidth;
    ++strip;
    separate();
    if (showsBlanks)
        drawRuler();
    drawEdge(glyphs.topLeft, glyphs.topRight, isPaper ? QString() : QString(registerTitle));
}

void TerminalPainter::row(const Row &row)
{
    const bool hasFault = isBroken(row);
    beginRow(hasFault);
    const int columns = drawCells(row);
    endCells(columns);
    drawMeaning(row.meaning, columns);
    out.endLine();
    if (hasFault && !hasColors)
        pointAtBroken(row);
}

void TerminalPainter::event(Event event)
{
    drawEdge(glyphs.leftTee, glyphs.rightTee, QString(nameOf(event)));
}

void TerminalPainter::remark(const QString &text)
{
    remarks += text;
}

void TerminalPainter::endStrip()
{
    drawEdge(glyphs.bottomLeft, glyphs.bottomRight);
    const int indent = isFramed() ? margin + 1 : 0;
    const int room = screenColumns == 0 ? 0 : std::max(1, screenColumns - indent);
    for (const QString &remark : std::exchange(remarks, {})) {
        for (const QString &line : wrapped(remark, room)) {
            out.fill(U' ', indent);
            out.look(lookOfMeaning);
            out.put(line);
            out.endLine();
        }
    }
}

/// Whether the terminal has room for the frame, and for one column that runs over it.
bool TerminalPainter::isFramed() const
{
    return screenColumns == 0 || screenColumns >= margin + 2 + width;
}

void TerminalPainter::separate()
{
    if (!std::exchange(isFirst, false))
        out.endLine();
}

void TerminalPainter::beginRow(bool hasFault)
{
    if (!isFramed())
        return;
    out.put(hasFault ? U'!' : U' ');
    out.fill(U' ', margin - 1);
    out.look(lookOfFrame);
    out.put(glyphs.vertical);
}

/// Draws what stands in the row; returns the columns that it takes, the mark of the edge left out.
int TerminalPainter::drawCells(const Row &row)
{
    int columns = 0;
    bool isOver = false;
    for (const Cell &cell : row.cells) {
        const int needed = columnsOf(cell);
        if (isPaper && !isOver && columns + needed > width) {
            out.fill(U' ', width - columns); // half of a wide character has no room
            out.look(";31");
            out.put(glyphs.over);
            isOver = true;
        }
        drawCell(cell, isOver);
        columns += needed;
    }
    out.look("");
    return columns;
}

void TerminalPainter::drawCell(const Cell &cell, bool isOver)
{
    const int columns = paper::columnsOf(cell.character);
    const bool isDot = showsBlanks && cell.character == U' ';
    out.look(lookOf(cell, isOver));
    out.put(isDot ? glyphs.blank : cell.character, columns);
    if (cell.style.doubleWidth)
        out.fill(U' ', columns);
}

void TerminalPainter::endCells(int columns)
{
    if (!isFramed() || columns > width)
        return;
    out.fill(U' ', width - columns);
    out.look(lookOfFrame);
    out.put(glyphs.vertical);
    out.look("");
}

void TerminalPainter::drawMeaning(const QString &meaning, int columns)
{
    if (meaning.isEmpty())
        return;
    const int taken = margin + 1 + std::max(columns, width) + 2; // the frame's sides and a blank
    const bool isBeside = isFramed() && (screenColumns == 0 || screenColumns - taken >= leastMeaning);
    const int room = std::max(1, screenColumns - (isBeside ? taken : meaningIndent));
    bool isFirstLine = isBeside;
    for (const QString &line : wrapped(meaning, screenColumns == 0 ? 0 : room)) {
        if (!std::exchange(isFirstLine, false))
            beginMeaningLine(isBeside);
        else
            out.put(U' ');
        out.look(lookOfMeaning);
        out.put(line);
        out.look("");
    }
}

void TerminalPainter::beginMeaningLine(bool isBeside)
{
    out.endLine();
    if (!isBeside)
        return out.fill(U' ', meaningIndent);
    beginRow(false);
    endCells(0);
    out.put(U' ');
}

void TerminalPainter::pointAtBroken(const Row &row)
{
    out.fill(U' ', isFramed() ? margin + 1 : 0);
    int columns = 0;
    int shift = 0;   // what the mark of the edge takes, and the blank in front of it
    int pointed = 0; // columns that are written
    for (const Cell &cell : row.cells) {
        const int needed = columnsOf(cell);
        if (isPaper && shift == 0 && columns + needed > width)
            shift = width - columns + 1;
        if (cell.isBroken) {
            out.fill(U' ', columns + shift - pointed);
            out.fill(U'^', needed);
            pointed = columns + shift + needed;
        }
        columns += needed;
    }
    out.endLine();
}

/// A horizontal line of the frame, which may tell something.
void TerminalPainter::drawEdge(char32_t left, char32_t right, QStringView text)
{
    out.look(lookOfFrame);
    if (isFramed()) {
        out.fill(U' ', margin);
        out.put(left);
    }
    const int room = isFramed() ? width : screenColumns;
    int taken = 0;
    if (!text.isEmpty()) {
        out.put(glyphs.horizontal);
        out.put(U' ');
        out.put(text);
        out.put(U' ');
        taken = static_cast<int>(text.size()) + 3;
    }
    out.fill(glyphs.horizontal, room - taken);
    if (isFramed() && taken <= room)
        out.put(right);
    out.endLine();
}

void TerminalPainter::drawRuler()
{
    out.fill(U' ', isFramed() ? margin + 1 : 0);
    for (int column = 1; column <= width; ++column) {
        const char32_t digit = U'0' + column / 10 % 10;
        out.put(column % 10 == 0 ? digit : column % 5 == 0 ? U'+' : U'.');
    }
    out.endLine();
}

} // namespace paper
