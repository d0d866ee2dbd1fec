#pragma once

#include "paper.h"

#include <QString>

#include <vector>

/// A stretch of a row that is drawn at once.
struct Run
{
    QString text;
    int column = 0;  ///< where it begins, counted from 0
    int columns = 0; ///< that it takes
    paper::Style style;
    bool isBroken = false;
    bool isOver = false; ///< stands beyond the paper's edge

    bool operator==(const Run &) const = default;
};

/// The row in stretches, from left to right, without a gap: characters that simply stand side by side
/// together, any other by itself with the marks that belong to it.
std::vector<Run> runsOf(const paper::Row &row, int paperColumns);

/// Columns of the paper that the row takes.
int columnsOf(const paper::Row &row);
