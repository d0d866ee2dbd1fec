#pragma once

#include "paper.h"

#include <QString>

#include <variant>
#include <vector>

/// One strip, read to its end.
struct Strip
{
    /// A row, a picture, what happens behind them, or a remark, which is about the paper and not on it.
    using Line = std::variant<paper::Row, paper::Picture, paper::Event, QString>;

    paper::StripKind kind = paper::StripKind::Paper;
    int columns = 0; ///< of the paper
    std::vector<Line> lines;
};
