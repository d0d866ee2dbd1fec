#include "outputreading.h"

void readOutput(QIODevice &output, const QByteArray &encoding, paper::Painter &painter,
                const paper::FaultSink &onFault, const std::function<bool()> &goesOn)
{
    constexpr qint64 pieceSize = 65536;
    paper::StreamReader reader(encoding, painter, onFault);
    QByteArray piece(pieceSize, '\0');
    for (qint64 length = 0; goesOn() && (length = output.read(piece.data(), pieceSize)) > 0;)
        reader.read(QByteArrayView(piece).first(length));
    reader.finish();
}
