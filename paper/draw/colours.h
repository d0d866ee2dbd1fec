#pragma once

#include <QColor>

/// The colours of the pictures, none of them transparent: a colour table of a few dozen entries holds a
/// picture, its soft edges included.
namespace colours {

inline constexpr QColor table(0xe4, 0xe2, 0xdd); ///< on which the paper lies
inline constexpr QColor shadow(0xcc, 0xc8, 0xc0);
inline constexpr QColor paper(0xff, 0xfe, 0xfb);
inline constexpr QColor edge(0xb9, 0xb4, 0xaa);
inline constexpr QColor ink(0x1c, 0x1c, 0x22);
inline constexpr QColor caption(0x6b, 0x67, 0x60);
inline constexpr QColor rule(0xd8, 0xd5, 0xce);
inline constexpr QColor overInk(0xb4, 0x1c, 0x1c); ///< what runs over the paper's edge
inline constexpr QColor overPaper(0xfb, 0xe0, 0xdd);
inline constexpr QColor brokenPaper(0xff, 0xdf, 0x80);
inline constexpr QColor mark(0x3f, 0x6c, 0xa8); ///< rulers and the middle
inline constexpr QColor grid(0xdf, 0xe8, 0xf2);

} // namespace colours
