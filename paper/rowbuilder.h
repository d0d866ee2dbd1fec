#pragma once

#include "paper.h"

#include <QString>

#include <functional>

namespace paper {

/// Gets what is wrong with a stream, as it is found.
using FaultSink = std::function<void(const Fault &)>;

/// One line of a stream, as text.
struct TextLine
{
    qint64 number = 1;
    QString text{};
    bool hasWrongBytes = false; ///< those are U+FFFD in `text`
    bool isEnded = true;        ///< false when the stream ends before the line feed
    bool isTooLong = false;     ///< `text` is its beginning
};

/// Makes rows of the characters of lines: one line at a time, its cells from left to right. Marks the cells
/// where something is wrong, and tells it.
class RowBuilder
{
public:
    /// `painter` must outlive this.
    RowBuilder(Painter &painter, FaultSink onFault);

    /// A new row, of this line, which must live until the row is handed on.
    void begin(const TextLine &line);
    /// Cells for the code units of the line in front of `end`, from where the last call stopped. With
    /// `isQuoted`, a quote among them is wrong.
    void addUntil(qsizetype end, bool isQuoted);
    /// Passes over the code units in front of `end`: they are on no paper.
    void skipUntil(qsizetype end);
    /// The line feed behind the line belongs to its text, and nothing can print it.
    void addLineBreak();

    /// Tells a fault at this place in the line.
    void tell(const QString &what) const;
    void markLast();
    void markAll();

    /// Hands the row on.
    void finish(const QString &meaning = {});

private:
    void add(char32_t character, bool isQuoted);
    QString objectionTo(char32_t character, bool isQuoted) const;

    Painter &painter;
    FaultSink onFault;
    const TextLine *line = nullptr;
    qsizetype place = 0; ///< in the line's code units
    qint64 column = 1;   ///< the same in characters
    Row row;
};

/// `text` with a picture for each character that has no shape of its own.
QString visible(const QString &text);

} // namespace paper
