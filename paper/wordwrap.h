#pragma once

#include <QString>
#include <QStringList>

namespace paper {

/// `text` in lines of at most `width` columns, broken at blanks, and in the middle of a word that is longer.
/// A `width` below 1 means any; a character that is wider than `width` gets a line of its own.
QStringList wrapped(const QString &text, int width);

} // namespace paper
