#pragma once

#include <QString>
#include <QStringView>

/// The text primitives of a printed column.
///
/// Widths count characters, one to a printer column: a character outside the basic plane counts once, though
/// it is two code units of a QString. A width below zero or above `maxWidth` is a count too large to reach:
/// it pads nothing and cuts nothing.
namespace columns {

/// No paper is wider, in characters. What bounds the memory of a row whatever the configuration says.
inline constexpr int maxWidth = 1'000'000;

/// The length of `text` in characters.
qsizetype length(QStringView text);

/// `text` followed by as many `fill` as it is shorter than `width`; never cut.
QString leftJustified(const QString &text, int width, QChar fill);

/// `text` preceded by as many `fill` as it is shorter than `width`; never cut.
QString rightJustified(const QString &text, int width, QChar fill);

/// The first `width` characters of `text`.
QString cut(const QString &text, int width);

} // namespace columns
