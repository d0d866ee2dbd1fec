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

/// The picture that `next` continues; null when it begins one of its own.
paper::Picture *pictureBefore(std::vector<Strip::Line> &lines, const paper::Picture &next)
{
    auto *before = lines.empty() ? nullptr : std::get_if<paper::Picture>(&lines.back());
    return before && before->left == next.left && before->width == next.width ? before : nullptr;
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

/// Joins the pieces of a picture: between two of them a seam would show. Each counts as a row all the same.
void StripCollector::picture(const paper::Picture &picture)
{
    widest = std::max(widest, picture.columns());
    cellCount += qint64(picture.columns()) * picture.rows();
    paper::Picture *before = hasRoom() ? pictureBefore(gathered.back().lines, picture) : nullptr;
    if (!before)
        return add(picture);
    ++lineCount;
    before->dots += picture.dots;
    before->height += picture.height;
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
