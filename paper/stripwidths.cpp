#include "stripwidths.h"

#include <algorithm>

namespace paper {

namespace {

constexpr std::ptrdiff_t leastRule = 8; // columns; a shorter row of the sign may be anything

/// How long the rule in the row is, which may be centred; 0 when it is none.
int lengthOfRule(const Row &row)
{
    const auto isBlank = [](const Cell &cell) { return cell.character == U' '; };
    const auto begin = std::ranges::find_if_not(row.cells, isBlank);
    const bool isRule =
        std::all_of(begin, row.cells.end(), [](const Cell &cell) { return cell.character == U'='; });
    const std::ptrdiff_t length = row.cells.end() - begin;
    return isRule && length >= leastRule ? static_cast<int>(length) : 0;
}

} // namespace

void StripWidths::beginStrip(StripKind)
{
    rule = 0;
}

void StripWidths::row(const Row &row)
{
    rule = std::max(rule, lengthOfRule(row));
}

void StripWidths::endStrip()
{
    found.push_back(std::clamp(rule == 0 ? usual : rule, least, most));
}

} // namespace paper
