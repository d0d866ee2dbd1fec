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

/// A row in the making: each call adds a piece behind the pieces before it.
///
/// The pieces go straight into one text, because a row is made for every item of a job.
class Row
{
public:
    Row() { row.reserve(usualLength); }

    Row &text(QStringView piece);
    Row &leftJustified(QStringView piece, int width, QChar fill);
    Row &rightJustified(QStringView piece, int width, QChar fill);
    /// The first `width` characters of `piece`, and `fill` where it is shorter.
    Row &cut(QStringView piece, int width, QChar fill);

    QString toString() const { return row; }

private:
    static constexpr qsizetype usualLength = 64; ///< a longer row costs one more allocation, and no more

    QString row;
};

} // namespace columns
