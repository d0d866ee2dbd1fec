#pragma once

#include <QFont>
#include <QPainterPath>
#include <QString>

/// The type of the pictures, and the grid that it gives. All lengths are in the pictures' own unit: a pixel
/// of the type at the size at which its advance is a whole number of 1/64 pixels, so that a row of any length
/// stays on the grid.
namespace typeface {

inline constexpr int size = 32;
/// DejaVu Sans Mono advances by 1233 of 2048 units.
inline constexpr qreal cellWidth = size * 1233.0 / 2048.0;
inline constexpr qreal rowHeight = 2 * cellWidth;
/// From the top of a row to the line on which its letters stand.
inline constexpr qreal baseline = 0.79 * rowHeight;

/// What is installed with the type.
inline constexpr char package[] = "fonts-dejavu-core";

/// Throws a CommandError (NotInstalled) when the type is not installed.
void require();

QFont rows(bool bold = false);

/// Whether a string of such characters may be drawn at once: each is in the type, takes one column, and
/// stands to the right of the one before it.
bool isPlain(char32_t character);

/// Whether no installed font has the text; it is drawn as boxes then.
bool isMissing(const QString &text);

/// What the picture itself has to say, as outlines: the text of a picture is its rows and nothing else.
/// `height` is that of the type.
QPainterPath caption(const QString &text, qreal height, bool bold = false);
/// The same in lines of at most `width`, one below the other; the first one's baseline is at 0.
QPainterPath wrappedCaption(const QString &text, qreal height, qreal width, bool bold = false);

} // namespace typeface
