#include "runs.h"

#include "characters.h"
#include "typeface.h"

using namespace paper;

namespace {

int cellColumns(const Cell &cell)
{
    return paper::columnsOf(cell.character) * (cell.style.doubleWidth ? 2 : 1);
}

Run runOf(const Cell &cell, int column, int paperColumns)
{
    Run run;
    const char32_t character = shown(cell.character);
    run.text = QString::fromUcs4(&character, 1);
    run.column = column;
    run.columns = cellColumns(cell);
    run.style = cell.style;
    run.isBroken = cell.isBroken;
    run.isOver = column + run.columns > paperColumns;
    return run;
}

bool lookAlike(const Run &one, const Run &other)
{
    return one.style == other.style && one.isBroken == other.isBroken && one.isOver == other.isOver;
}

/// Puts a row together, cell by cell.
class Runs
{
public:
    explicit Runs(int columns) : paperColumns(columns) {}

    void add(const Cell &cell)
    {
        const bool isPlain = typeface::isPlain(shown(cell.character));
        Run run = runOf(cell, column, paperColumns);
        column += run.columns;
        const bool isMarked = !runs.empty() && (run.columns == 0 || runs.back().columns == 0);
        if (isMarked || (isPlain && lastIsPlain && lookAlike(runs.back(), run)))
            append(run);
        else
            runs.push_back(std::move(run));
        lastIsPlain = isPlain && !isMarked;
    }
    std::vector<Run> take() { return std::move(runs); }

private:
    void append(const Run &run)
    {
        runs.back().text += run.text;
        runs.back().columns += run.columns;
        runs.back().isBroken = runs.back().isBroken || run.isBroken;
    }

    int paperColumns;
    int column = 0;
    bool lastIsPlain = false;
    std::vector<Run> runs;
};

} // namespace

std::vector<Run> runsOf(const Row &row, int paperColumns)
{
    Runs runs(paperColumns);
    for (const Cell &cell : row.cells)
        runs.add(cell);
    return runs.take();
}

int columnsOf(const Row &row)
{
    int columns = 0;
    for (const Cell &cell : row.cells)
        columns += cellColumns(cell);
    return row.isNarrow ? (columns * 3 + 3) / 4 : columns;
}
