#pragma once

#include "placedsource.h"

#include <QIODevice>
#include <QXmlStreamReader>

namespace check {

/// The bytes of a job on their way to the renderer's tolerant reader, read by the toolkit's strict one as
/// they go by: what that one objects to, other programs do.
///
/// The strict reader follows one piece behind, and stops where it would cost too much: at a tag of many
/// attributes, each of which it compares with every other, at entities, which it would expand, and at a tag,
/// a remark or a text of many pieces, which it begins anew with every piece.
class StrictPass : public QIODevice
{
public:
    explicit StrictPass(QIODevice &bytes) : device(bytes)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

    /// Reads no further than up to here.
    void giveUp();
    /// Reads what is left. False when the text is no XML; then `place` and `reason` tell more.
    bool finish();
    Place place() const { return {reader.lineNumber(), qMax<qint64>(1, reader.columnNumber())}; }
    QString reason() const { return reader.errorString(); }

    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *data, qint64 most) override;
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    void readPiece();

    QIODevice &device;
    QXmlStreamReader reader;
    QByteArray piece;      ///< that the strict reader has not had yet
    qsizetype waiting = 0; ///< bytes that it has had since it last came to the end of anything
    bool isGivenUp = false;
};

} // namespace check
