#pragma once

#include "paper.h"
#include "terminalwriter.h"

#include <QStringList>

#include <ostream>
#include <string>
#include <vector>

namespace paper {

/// Shows strips on a terminal: each in a frame as wide as the paper, what runs over its edge behind a mark,
/// what is broken in red or, without colours, pointed at from below. Commands of a register have their
/// meaning beside them. On a terminal narrower than the paper there is no frame.
class TerminalPainter : public Painter
{
public:
    /// `output` must outlive this. With `showsBlanks`, a ruler stands above each strip and a dot for each
    /// blank.
    TerminalPainter(std::ostream &output, const Screen &screen, bool showsBlanks = false);

    /// How wide the strips to come are, in columns, one after the other; the last holds for those behind it.
    void setWidths(std::vector<int> widths);
    /// A line of its own between the strips.
    void title(const QString &text);

    void beginStrip(StripKind kind) override;
    void row(const Row &row) override;
    void event(Event event) override;
    void remark(const QString &text) override;
    void endStrip() override;

private:
    struct Glyphs;

    bool isFramed() const;
    void separate();
    void beginRow(bool isBroken);
    int drawCells(const Row &row);
    void drawCell(const Cell &cell, bool isOver);
    void endCells(int columns);
    void drawMeaning(const QString &meaning, int columns);
    void beginMeaningLine(bool isBeside);
    void pointAtBroken(const Row &row);
    void drawEdge(char32_t left, char32_t right, QStringView text = {});
    void drawRuler();

    TerminalWriter out;
    const Glyphs &glyphs;
    const int screenColumns;
    const bool hasColors;
    const bool showsBlanks;
    std::vector<int> widths;
    std::size_t strip = 0; ///< how many strips took their width from `widths`
    int width = 0;         ///< of the strip at hand
    bool isPaper = true;   ///< it has an edge, where a row ends
    bool isFirst = true;
    QStringList remarks; ///< about the strip at hand
};

} // namespace paper
