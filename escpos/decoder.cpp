// Rows, styles and events. Pictures and codes are in decoderpictures.cpp.

#include "decoder.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int fontDots[] = {12, 9, 9}; ///< across a character of font A, B, C
constexpr int tabColumns = 8;
constexpr int mostTabStops = 32; ///< that printers keep
constexpr int rowHeight = 24;    ///< dots
/// Rows longer than any paper are broken, so that a stream without line ends takes no memory.
constexpr std::size_t maxCells = 100'000;
/// Bytes; only data that ends with a zero byte can be longer, and it is never printed whole.
constexpr qsizetype maxGathered = 200'000;

/// Many commands take the digit "1" for 1.
int value(const PrinterCommand &command)
{
    const int parameter = command.parameter(0);
    return parameter >= '0' && parameter <= '9' ? parameter - '0' : parameter;
}

} // namespace

Decoder::Decoder(paper::Painter &paperPainter, const Profile &printer, Width rowWidth)
    : reader(*this), painter(paperPainter), profile(printer), width(rowWidth)
{
}

void Decoder::end()
{
    reader.end();
    finishPicture();
    if (!row.cells.empty())
        remark(u"the last row is not ended, so the printer keeps it"_s);
    if (stripIsOpen)
        painter.endStrip();
    stripIsOpen = false;
}

void Decoder::text(qint64, QByteArrayView bytes)
{
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        const bool isHalf =
            state.isChinese && code >= CodePage::firstHigh; // two such bytes are one Chinese letter
        const char16_t character = isHalf ? CodePage::noCharacter : state.characters.characterOf(code);
        put(character, character == CodePage::noCharacter);
    }
}

void Decoder::command(const PrinterCommand &command)
{
    current = command;
    gathered.clear();
    whole = nullptr;
    rasterBytes = 0;
    if (command.kind->run)
        (this->*command.kind->run)(command);
}

void Decoder::data(qint64, QByteArrayView bytes)
{
    if (rasterBytes > 0) {
        gathered += bytes;
        addRaster();
    } else if (whole && gathered.size() < maxGathered) {
        gathered += bytes;
    }
}

void Decoder::endOfCommand()
{
    if (whole)
        (this->*whole)();
    whole = nullptr;
    gathered.clear();
}

void Decoder::unknown(qint64 offset, QByteArrayView bytes)
{
    remark(u"unknown command %1 at byte %2, skipped"_s.arg(hexOf(bytes)).arg(offset));
}

void Decoder::torn(qint64 offset, QByteArrayView bytes)
{
    remark(u"the stream ends in the middle of command %1 at byte %2"_s.arg(hexOf(bytes)).arg(offset));
}

void Decoder::put(char32_t character, bool isBroken)
{
    finishPicture();
    if (width == Width::OfPaper && rowDots > 0 && rowDots + cellDots() > room())
        finishRow();
    if (row.cells.size() >= maxCells)
        finishRow();
    row.cells.push_back({character, state.style, isBroken});
    row.isNarrow = state.font > 0;
    rowDots += cellDots();
}

void Decoder::putBlanksTo(int dots)
{
    const int end = std::min(dots, room());
    const int blank = fontDots[state.font];
    finishPicture();
    for (; rowDots + blank <= end; rowDots += blank)
        row.cells.push_back({}); // plain whatever the style: nothing is printed there
}

/// Paints the row as it stands now.
void Decoder::finishRow()
{
    finishPicture();
    openStrip();
    const int blanks = row.cells.empty() ? 0 : (state.margin + indentation(rowDots)) / fontDots[state.font];
    row.cells.insert(row.cells.begin(), blanks, paper::Cell());
    painter.row(row);
    row = paper::Row();
    rowDots = 0;
}

void Decoder::openStrip()
{
    if (stripIsOpen)
        return;
    stripIsOpen = true;
    painter.beginStrip(paper::StripKind::Paper);
}

void Decoder::remark(const QString &text)
{
    openStrip();
    painter.remark(text);
}

/// Dots across a character in the current style.
int Decoder::cellDots() const
{
    return fontDots[state.font] * (state.style.doubleWidth ? 2 : 1);
}

/// Dots across a row of whole characters.
int Decoder::room() const
{
    const int paper = std::max(0, profile.dots - state.margin);
    const int area = state.printArea > 0 ? std::min(state.printArea, paper) : paper;
    return area / fontDots[state.font] * fontDots[state.font];
}

/// Dots in front of what is `dots` wide.
int Decoder::indentation(int dots) const
{
    const int rest = std::max(0, room() - dots);
    return state.justify == Justify::Left ? 0 : state.justify == Justify::Centre ? rest / 2 : rest;
}

std::vector<int> Decoder::usualTabStops()
{
    std::vector<int> stops;
    for (int stop = 1; stop <= mostTabStops; ++stop)
        stops.push_back(stop * tabColumns * fontDots[0]);
    return stops;
}

void Decoder::tabulate(const PrinterCommand &)
{
    const auto next = std::upper_bound(state.tabStops.begin(), state.tabStops.end(), rowDots);
    if (next != state.tabStops.end())
        putBlanksTo(*next);
}

void Decoder::startTabStops(const PrinterCommand &)
{
    whole = &Decoder::setTabStops;
}

/// Each byte is a column behind the one before it; the first that is not ends the list, as the zero does.
void Decoder::setTabStops()
{
    state.tabStops.clear();
    int last = 0;
    for (const char byte : gathered.first(std::min<qsizetype>(gathered.size(), mostTabStops))) {
        const int column = static_cast<unsigned char>(byte);
        if (column <= last)
            return;
        state.tabStops.push_back(column * cellDots());
        last = column;
    }
}

void Decoder::endRow(const PrinterCommand &)
{
    endRow();
}

void Decoder::endRow()
{
    if (pictureEndsWithRow)
        finishPicture();
    else
        finishRow();
}

void Decoder::dropRow(const PrinterCommand &)
{
    row = paper::Row();
    rowDots = 0;
}

void Decoder::feedRows(const PrinterCommand &command)
{
    feed(command.parameter(0));
}

void Decoder::feedDots(const PrinterCommand &command)
{
    feed(command.parameter(0) / rowHeight);
}

/// Ends the row, if there is one, which is the first of `rows`.
void Decoder::feed(int rows)
{
    int fed = 0;
    if (!row.cells.empty() || pictureEndsWithRow) {
        endRow();
        ++fed;
    }
    for (; fed < rows; ++fed)
        finishRow();
}

void Decoder::moveTo(const PrinterCommand &command)
{
    putBlanksTo(command.wideParameter(0));
}

void Decoder::moveBy(const PrinterCommand &command)
{
    putBlanksTo(rowDots + command.wideParameter(0));
}

void Decoder::initialise(const PrinterCommand &)
{
    finishPicture();
    if (!row.cells.empty())
        remark(u"a row was begun and not ended: the printer drops it"_s);
    row = paper::Row();
    rowDots = 0;
    state = State();
}

void Decoder::enterChinese(const PrinterCommand &command)
{
    state.isChinese = true;
    remark(u"Chinese mode from byte %1 on: accents are lost in it"_s.arg(command.offset));
}

void Decoder::leaveChinese(const PrinterCommand &)
{
    state.isChinese = false;
}

void Decoder::setCodePage(const PrinterCommand &command)
{
    const CodePage *chosen = findCodePage(command.parameter(0));
    if (chosen)
        state.characters.page = chosen;
    else
        remark(u"unknown code page %1 at byte %2: letters are shown in %3"_s.arg(command.parameter(0))
                   .arg(command.offset)
                   .arg(state.characters.page->name));
}

void Decoder::setInternational(const PrinterCommand &command)
{
    const InternationalSet *chosen = findInternationalSet(command.parameter(0));
    if (chosen)
        state.characters.set = chosen;
    else
        tellUnseen(command);
}

void Decoder::setFont(const PrinterCommand &command)
{
    state.font = std::min(value(command), int(std::size(fontDots)) - 1);
}

void Decoder::setSize(const PrinterCommand &command)
{
    state.style.doubleWidth = command.parameter(0) / 16 > 0;
    state.style.doubleHeight = command.parameter(0) % 16 > 0;
}

void Decoder::setPrintMode(const PrinterCommand &command)
{
    const int mode = command.parameter(0);
    state.font = mode & 0x01;
    state.style.bold = mode & 0x08;
    state.style.doubleHeight = mode & 0x10;
    state.style.doubleWidth = mode & 0x20;
    state.style.underlined = mode & 0x80;
}

void Decoder::setBold(const PrinterCommand &command)
{
    state.style.bold = command.parameter(0) & 1;
}

void Decoder::setUnderlined(const PrinterCommand &command)
{
    state.style.underlined = value(command) > 0;
}

void Decoder::setInverse(const PrinterCommand &command)
{
    state.style.inverse = command.parameter(0) & 1;
}

void Decoder::setJustify(const PrinterCommand &command)
{
    if (!row.cells.empty()) // told in the middle of a row, it is not obeyed
        return;
    finishPicture();
    const int side = value(command);
    if (side <= int(Justify::Right))
        state.justify = Justify(side);
}

void Decoder::setMargin(const PrinterCommand &command)
{
    if (row.cells.empty()) // told in the middle of a row, it is not obeyed
        state.margin = std::min(command.wideParameter(0), profile.dots);
}

void Decoder::setPrintArea(const PrinterCommand &command)
{
    if (row.cells.empty())
        state.printArea = command.wideParameter(0);
}

void Decoder::cut(const PrinterCommand &)
{
    finishPicture();
    if (!row.cells.empty())
        finishRow();
    openStrip();
    painter.event(paper::Event::Cut);
}

void Decoder::openDrawer(const PrinterCommand &)
{
    openStrip();
    painter.event(paper::Event::Drawer);
}

void Decoder::tellUnseen(const PrinterCommand &command)
{
    remark(u"%1 at byte %2 is not shown"_s.arg(hexOf(command.bytes)).arg(command.offset));
}

/// For what changes the look of all that follows, unless its parameters are zero.
void Decoder::tellUnlessOff(const PrinterCommand &command)
{
    const QByteArrayView parameters = QByteArrayView(command.bytes).sliced(command.kind->bytes.size());
    if (std::any_of(parameters.begin(), parameters.end(),
                    [](char byte) { return byte != '\0' && byte != '0'; }))
        tellUnseen(command);
}
