#pragma once

#include "strip.h"

#include <set>
#include <utility>
#include <vector>

/// A line of a strip: the number of the strip, and of the line in it.
using LinePlace = std::pair<size_t, size_t>;

/// The rows of `strips` that `others` does not have, as programs that compare files tell them. None for paper
/// of more than a few hundred rows: nobody would look there.
std::set<LinePlace> rowsMissingIn(const std::vector<Strip> &others, const std::vector<Strip> &strips);

/// The rows as text: strips follow one another with an empty line between them.
QString textOf(const std::vector<Strip> &strips);
