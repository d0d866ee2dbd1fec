#include "stripcollector.h"

#include "commanderror.h"
#include "picturelimits.h"
#include "runs.h"

using namespace Qt::Literals::StringLiterals;

namespace {

[[noreturn]] void tellTooLarge(const QString &what, qint64 limit)
{
    throw CommandError(ExitCode::TooLarge,
                       u"%1, and a picture holds at most %2; use \"palvestrin preview --format txt\""_s.arg(
                           what, QString::number(limit)));
}

} // namespace

void StripCollector::beginStrip(paper::StripKind kind)
{
    const int columns = paperColumns.at(qMin(stripCount, paperColumns.size() - 1));
    ++stripCount;
    if (hasRoom())
        gathered.push_back({kind, columns, {}});
}

void StripCollector::row(const paper::Row &row)
{
    widest = std::max(widest, columnsOf(row));
    cellCount += qint64(row.cells.size());
    add(row);
}

void StripCollector::add(const Strip::Line &line)
{
    ++lineCount;
    if (hasRoom())
        gathered.back().lines.push_back(line);
}

bool StripCollector::hasRoom() const
{
    return stripCount + lineCount <= limits::rows && cellCount <= limits::cells && widest <= limits::columns;
}

const std::vector<Strip> &StripCollector::strips() const
{
    if (stripCount + lineCount > limits::rows)
        tellTooLarge(u"there are %1 rows and strips"_s.arg(stripCount + lineCount), limits::rows);
    if (widest > limits::columns)
        tellTooLarge(u"the widest row takes %1 columns"_s.arg(widest), limits::columns);
    if (cellCount > limits::cells)
        tellTooLarge(u"there are %1 characters"_s.arg(cellCount), limits::cells);
    return gathered;
}
