#include "paper.h"

namespace paper {

namespace {

constexpr int halfColumn = Picture::dotsPerColumn / 2;
constexpr int halfRow = Picture::dotsPerRow / 2;

// By the quarters that are black: 1 upper left, 2 upper right, 4 lower left, 8 lower right.
constexpr char32_t quarters[] = U" ▘▝▀▖▌▞▛▗▚▐▜▄▙▟█";

/// Whether a quarter of a column has more ink than paper in it. One dot in three looks black: heads burn
/// dots that overlap.
bool isDark(const Picture &picture, int left, int top)
{
    int black = 0;
    for (int y = top; y < top + halfRow; ++y) {
        for (int x = left; x < left + halfColumn; ++x)
            black += picture.isBlack(x, y);
    }
    return black * 3 > halfColumn * halfRow;
}

Cell cellAt(const Picture &picture, int column, int row)
{
    const int left = column * Picture::dotsPerColumn - picture.left;
    const int top = row * Picture::dotsPerRow;
    int dark = 0;
    for (int quarter = 0; quarter < 4; ++quarter) {
        if (isDark(picture, left + quarter % 2 * halfColumn, top + quarter / 2 * halfRow))
            dark |= 1 << quarter;
    }
    Cell cell;
    cell.character = quarters[dark];
    return cell;
}

} // namespace

bool Picture::isBlack(int x, int y) const
{
    if (x < 0 || y < 0 || x >= width || y >= height)
        return false;
    return dots[y * bytesPerRow() + x / 8] & (0x80 >> x % 8);
}

std::vector<Row> rowsOf(const Picture &picture)
{
    std::vector<Row> rows(picture.rows());
    for (std::size_t row = 0; row < rows.size(); ++row) {
        for (int column = 0; column < picture.columns(); ++column)
            rows[row].cells.push_back(cellAt(picture, column, int(row)));
    }
    return rows;
}

void Painter::picture(const Picture &picture)
{
    for (const Row &each : rowsOf(picture))
        row(each);
}

} // namespace paper
