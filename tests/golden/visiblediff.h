#pragma once

#include <QByteArray>

/// Bytes as text in which each of them can be seen: a line feed is ␊, a carriage return ␍, a tab ␉, a blank
/// ·; other control characters, backslashes, dots like the blank's and bytes that are not UTF-8 are \xNN.
QByteArray visible(const QByteArray &bytes);

/// Where `actual` departs from `expected`, line by line: lines that both begin or end with are left out, then
/// expected lines stand behind "-" and actual ones behind "+", under the number of the first such line.
/// At most 40 lines of each are shown. Empty when the two are equal.
QByteArray visibleDiff(const QByteArray &expected, const QByteArray &actual);
