#include "outputreading.h"

#include "decoder.h"

void readBytes(FinishedOutput &output, const std::function<void(QByteArrayView)> &take,
               const std::function<bool()> &goesOn)
{
    constexpr qint64 pieceSize = 65536;
    QFile &stream = output.stream();
    QByteArray piece(pieceSize, '\0');
    for (qint64 length = 0; goesOn() && (length = stream.read(piece.data(), pieceSize)) > 0;)
        take(QByteArrayView(piece).first(length));
}

void readOutput(FinishedOutput &output, const Preview &preview, paper::Painter &painter,
                const paper::FaultSink &onFault, const std::function<bool()> &goesOn)
{
    if (output.isForReceiptPrinter()) {
        Decoder decoder(painter, *preview.profile, Decoder::Width::OfPaper);
        readBytes(
            output, [&](QByteArrayView bytes) { decoder.take(bytes); }, goesOn);
        decoder.end();
    } else {
        paper::StreamReader reader(preview.encoding(), painter, onFault);
        readBytes(
            output, [&](QByteArrayView bytes) { reader.read(bytes); }, goesOn);
        reader.finish();
    }
}
