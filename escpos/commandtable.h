#pragma once

#include <QByteArrayView>
#include <QLatin1StringView>
#include <QString>

#include <span>

class Decoder;
struct PrinterCommand;

/// What stands behind the bytes that tell a command apart.
enum class Shape {
    Parameters,    ///< as many bytes as the table says
    UntilZero,     ///< those, then data up to a zero byte
    Sized,         ///< those, then the number of bytes of data in two bytes, the low one first, and the data
    LongSized,     ///< the same with four bytes
    Counted,       ///< those, the last of which is the number of bytes of data
    RasterPicture, ///< mode, bytes of a row (2), rows (2), dots
    ColumnPicture, ///< mode, columns (2), dots: one byte a column or, from mode 32 on, three
    KeptPicture,   ///< columns / 8, rows / 8, dots
};

/// One command that the decoder knows. Where the bytes of one begin those of another, the longer one counts.
struct CommandKind
{
    QByteArrayView bytes; ///< all that tell it apart
    Shape shape;
    int parameters; ///< bytes
    /// What it does. "%1" and "%2" stand for the first two parameters.
    QLatin1StringView words;
    QLatin1StringView values; ///< names of what the first parameter may be, by "|", from 0 on
    void (Decoder::*run)(const PrinterCommand &); ///< null when nothing of it can be seen on paper
};

std::span<const CommandKind> commandKinds();

/// A command of a stream.
struct PrinterCommand
{
    const CommandKind *kind = nullptr;
    qint64 offset = 0; ///< of its first byte
    QByteArray bytes;  ///< without the data

    /// The parameter at `index`, counted from 0; 0 when the command has fewer.
    int parameter(qsizetype index) const;
    /// Two parameters, the low one first.
    int wideParameter(qsizetype index) const { return parameter(index) + 256 * parameter(index + 1); }
    /// In words, the values of the parameters included.
    QString meaning() const;
};

/// "1B 40": bytes as people read them.
QString hexOf(QByteArrayView bytes);
