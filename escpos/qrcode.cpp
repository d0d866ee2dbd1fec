#include "qrcode.h"

#include <qrencode.h>

#include <memory>

paper::Picture qrCode(const QByteArray &text, int level, int module)
{
    constexpr int smallestThatFits = 0;
    const std::unique_ptr<QRcode, void (*)(QRcode *)> code(
        QRcode_encodeData(int(text.size()), reinterpret_cast<const unsigned char *>(text.constData()),
                          smallestThatFits, QRecLevel(level)),
        QRcode_free);
    paper::Picture picture;
    if (!code)
        return picture;
    picture.width = picture.height = code->width * module;
    picture.dots.fill('\0', qsizetype(picture.bytesPerRow()) * picture.height);
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            if (code->data[y / module * code->width + x / module] & 1)
                picture.dots[y * picture.bytesPerRow() + x / 8] |= char(0x80 >> x % 8);
        }
    }
    return picture;
}
