// Any bytes through the decoder of what is sent to receipt printers, and through the listing of its commands.

#include "decoder.h"
#include "hexlisting.h"
#include "target.h"

namespace {

/// Draws nothing, and watches what every painter relies upon.
class StrictPainter : public paper::Painter
{
public:
    void beginStrip(paper::StripKind) override
    {
        require(!isOpen, "strips do not overlap");
        isOpen = true;
    }
    void row(const paper::Row &row) override
    {
        require(isOpen, "rows stand on a strip");
        require(row.cells.size() <= 200'000, "a row has an end");
        for (const paper::Cell &cell : row.cells)
            require(QChar::category(cell.character) != QChar::Other_Control,
                    "no cell is a control character");
        ++pieces;
    }
    void picture(const paper::Picture &picture) override
    {
        require(isOpen, "pictures stand on a strip");
        require(picture.height > 0 && picture.height <= 24 && picture.width >= 0 && picture.left >= 0,
                "pictures come in bands");
        require(picture.dots.size() == qsizetype(picture.bytesPerRow()) * picture.height,
                "a picture has all its dots");
        ++pieces;
    }
    void event(paper::Event) override { ++pieces; }
    void remark(const QString &) override { ++pieces; }
    void endStrip() override
    {
        require(isOpen, "a strip ends once");
        isOpen = false;
    }

    bool isOpen = false;
    qint64 pieces = 0;
};

qint64 decode(QByteArrayView bytes, qsizetype pieceSize)
{
    StrictPainter painter;
    Decoder decoder(painter, usualProfile, Decoder::Width::OfPaper);
    for (qsizetype at = 0; at < bytes.size(); at += pieceSize)
        decoder.take(bytes.sliced(at, qMin(pieceSize, bytes.size() - at)));
    decoder.end();
    require(!painter.isOpen, "the last strip is ended");
    return painter.pieces;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArrayView bytes(data, qsizetype(size));
    require(decode(bytes, qMax<qsizetype>(1, bytes.size())) == decode(bytes, 1),
            "pieces of any size show the same");

    QByteArray listed;
    HexListing listing(
        [&](const QString &line) { listed += QByteArray::fromHex(line.mid(10, 48).toLatin1()); });
    listing.take(bytes);
    listing.end();
    require(listed == bytes, "every byte is listed once");
    return 0;
}
