#pragma once

#include <QtGlobal>

/// What a picture may hold. Beyond it the memory that it takes, and the patience of whoever opens it, would
/// not do; the text forms have no limit.
namespace limits {

inline constexpr qint64 rows = 10'000;          ///< of all strips together
inline constexpr qint64 cells = 1'000'000;      ///< of all rows together
inline constexpr int columns = 1'000;           ///< of a row
inline constexpr int pixels = 30'000;           ///< of a PNG's height or width
inline constexpr qint64 allPixels = 40'000'000; ///< of a PNG
inline constexpr int scale = 8;

} // namespace limits
