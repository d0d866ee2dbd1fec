#include "strictpass.h"

namespace check {

namespace {

constexpr qsizetype longestToken = 16'384;

} // namespace

void StrictPass::giveUp()
{
    isGivenUp = true;
    reader.clear(); // and let go of what it holds
}

bool StrictPass::finish()
{
    readPiece();
    return isGivenUp || !reader.hasError() || reader.error() == QXmlStreamReader::PrematureEndOfDocumentError;
}

qint64 StrictPass::readData(char *data, qint64 most)
{
    readPiece();
    const qint64 size = device.read(data, most);
    if (!isGivenUp)
        piece = QByteArray(data, qMax<qint64>(0, size));
    return size;
}

void StrictPass::readPiece()
{
    const bool hasFailed =
        reader.hasError() && reader.error() != QXmlStreamReader::PrematureEndOfDocumentError;
    if (isGivenUp || hasFailed || piece.isEmpty())
        return;
    reader.addData(piece);
    waiting += piece.size();
    piece.clear();
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::Invalid)
            waiting = 0;
    }
    if (waiting > longestToken)
        giveUp();
}

} // namespace check
