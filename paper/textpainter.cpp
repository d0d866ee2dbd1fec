#include "textpainter.h"

#include <utility>

namespace paper {

void appendUtf8(std::string &bytes, char32_t character)
{
    const auto add = [&bytes](char32_t byte) { bytes += static_cast<char>(byte); };
    const auto addRest = [&](int shift) { add(0x80 | (character >> shift & 0x3f)); };
    if (character < 0x80)
        return add(character);
    if (character < 0x800) {
        add(0xc0 | character >> 6);
    } else if (character < 0x10000) {
        add(0xe0 | character >> 12);
        addRest(6);
    } else {
        add(0xf0 | character >> 18);
        addRest(12);
        addRest(6);
    }
    addRest(0);
}

void TextPainter::beginStrip(StripKind)
{
    if (!std::exchange(isFirst, false))
        out << "\f\n";
}

void TextPainter::row(const Row &row)
{
    line.clear();
    for (const Cell &cell : row.cells)
        appendUtf8(line, cell.character);
    line += '\n';
    out.write(line.data(), static_cast<std::streamsize>(line.size()));
}

} // namespace paper
