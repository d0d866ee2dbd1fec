#pragma once

#include "strip.h"

#include <QStringList>

/// A row of plain cells.
inline paper::Row plainRow(const QString &text, paper::Style style = {})
{
    paper::Row row;
    for (const char32_t character : text.toStdU32String())
        row.cells.push_back({character, style, false});
    return row;
}

inline Strip paperStrip(int columns, const QStringList &rows)
{
    Strip strip{paper::StripKind::Paper, columns, {}};
    for (const QString &row : rows)
        strip.lines.push_back(plainRow(row));
    return strip;
}
