#pragma once

#include "linedecoder.h"
#include "linesplitter.h"
#include "paper.h"
#include "registersum.h"
#include "rowbuilder.h"

namespace paper {

/// Reads a finished output of `palvestrin-print`, for line printer and cash register in any order, and hands
/// it to a painter:
///
///     "\n" "j\n"            opens a strip of paper
///     "\"" text "\"@\n"     is a row of it
///     "J\n"                 closes the last strip; the others end where the next one opens
///     "\n"                  alone opens a strip of register commands, each a line (see registercommand.h);
///                           a row may stand among them, with or without its opening quote
///
/// A stream with faults is read to its end all the same. A row with a line feed in its text becomes two, and
/// what is wrong is marked in the cells. The memory does not grow with the stream.
class StreamReader
{
public:
    /// `encoding` as for LineDecoder; `painter` must outlive this.
    StreamReader(const QByteArray &encoding, Painter &painter, const FaultSink &onFault);

    /// Takes the next bytes, as many or few as there are.
    void read(QByteArrayView bytes);
    /// The stream has ended. To be called once, last.
    void finish();

private:
    enum class Section { None, Paper, Register };

    void take(const StreamLine &bytes);
    void takeEmptyLine(qint64 number);
    void takeLine(const TextLine &line);
    void takeRow(const TextLine &line);
    void endRow(const TextLine &line, bool isClosed);
    void takeCommand(const TextLine &line);
    void addCommand(const TextLine &line, qsizetype length, const RegisterCommand &command);
    void addBrokenCommand(const TextLine &line, qsizetype length);
    void takeClosing(const TextLine &line);

    void openStrip(Section kind);
    void openUnasked(const TextLine &line);
    void closeStrip();

    LineSplitter lines;
    LineDecoder decoder;
    RowBuilder rows;
    Painter &painter;
    FaultSink onFault;

    Section section = Section::None;
    RegisterSum sum;              ///< of the strip at hand
    qint64 lineNumber = 0;        ///< of the last line
    bool isLineOpen = false;      ///< a line feed stood in a text, which goes on
    bool isEmptyLineHeld = false; ///< what it opens depends on the next line
    bool isCutOff = false;        ///< the last line had no line feed
};

} // namespace paper
