#pragma once

#include "streamreader.h"

#include <QByteArray>
#include <QString>

/// Writes down what a reader hands on, a line each: "paper" and "register" begin a strip, "end" ends it,
/// "|...|" is a row, with [ ] around each cell that is marked as broken and the meaning behind it.
class RecordingPainter : public paper::Painter
{
public:
    void beginStrip(paper::StripKind kind) override
    {
        record += kind == paper::StripKind::Paper ? "paper\n" : "register\n";
    }
    void row(const paper::Row &row) override
    {
        record += '|';
        for (const paper::Cell &cell : row.cells) {
            const QByteArray character = QStringView(QChar::fromUcs4(cell.character)).toUtf8();
            record += cell.isBroken ? '[' + character + ']' : character;
        }
        record += row.meaning.isEmpty() ? QByteArray("|\n") : "| " + row.meaning.toUtf8() + '\n';
    }
    void event(paper::Event) override { record += "event\n"; }
    void remark(const QString &text) override { record += "remark: " + text.toUtf8() + '\n'; }
    void endStrip() override { record += "end\n"; }

    QByteArray record;
};

/// What a reader hands on, and the faults that it tells, "line:column: what" a line.
struct Reading
{
    QByteArray record;
    QByteArray faults;
};

/// Reads `stream` in pieces of `piece` bytes.
inline Reading readingOf(const QByteArray &stream, const QByteArray &encoding = "UTF-8",
                         qsizetype piece = 1'000'000)
{
    Reading reading;
    RecordingPainter painter;
    paper::StreamReader reader(encoding, painter, [&reading](const paper::Fault &fault) {
        reading.faults += QByteArray::number(fault.line) + ':' + QByteArray::number(fault.column) + ": " +
                          fault.what.toUtf8() + '\n';
    });
    for (qsizetype at = 0; at < stream.size(); at += piece)
        reader.read(QByteArrayView(stream).sliced(at, qMin(piece, stream.size() - at)));
    reader.finish();
    reading.record = painter.record;
    return reading;
}
