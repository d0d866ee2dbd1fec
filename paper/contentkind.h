#pragma once

#include <QByteArrayView>

namespace paper {

/// What a file is, told by its content.
enum class ContentKind {
    Job,            ///< XML, in any encoding that an XML reader takes
    Output,         ///< a finished output of `palvestrin-print`, whole or broken
    ReceiptPrinter, ///< ESC/POS commands, whoever made them
    Neither,        ///< an empty file too
};

/// How many bytes of a file's beginning tell.
inline constexpr qsizetype tellingLength = 4096;

/// `beginning` is what the file begins with: `tellingLength` bytes, or all of it.
ContentKind contentKind(QByteArrayView beginning);

} // namespace paper
