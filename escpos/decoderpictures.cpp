// Pictures and codes.

#include "decoder.h"
#include "qrcode.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;
using paper::Picture;

namespace {

constexpr int maxPictureDots = 4096;    ///< across; no paper is wider, and what is beyond it is not seen
constexpr int maxGraphicsHeight = 2400; ///< printers keep no more, and one command prints it again and again
constexpr int bandHeight = Picture::dotsPerRow;
constexpr int graphicsHead = 10; ///< bytes in front of the dots

int byteAt(const QByteArray &bytes, qsizetype index)
{
    return index < bytes.size() ? static_cast<unsigned char>(bytes[index]) : 0;
}

int wideAt(const QByteArray &bytes, qsizetype index)
{
    return byteAt(bytes, index) + 256 * byteAt(bytes, index + 1);
}

void blacken(QByteArray &dots, qsizetype place)
{
    dots[place / 8] = char(dots[place / 8] | 0x80 >> place % 8);
}

/// What a code says, as people can read it.
QString quoted(const QByteArray &bytes)
{
    constexpr qsizetype enough = 60;
    QString text = QString::fromUtf8(bytes);
    text.removeIf([](QChar character) { return !character.isPrint(); });
    return u'"' + (text.size() > enough ? text.left(enough) + u"..."_s : text) + u'"';
}

} // namespace

void Decoder::startRaster(const PrinterCommand &command)
{
    rasterMode = command.parameter(0);
    rasterBytes = command.wideParameter(1);
}

/// Paints the rows of a raster picture that are there by now.
void Decoder::addRaster()
{
    const int across = rasterMode & 1 ? 2 : 1;
    const int down = rasterMode & 2 ? 2 : 1;
    qsizetype taken = 0;
    for (; gathered.size() - taken >= rasterBytes; taken += rasterBytes)
        addDots({.left = 0, .width = rasterBytes * 8, .height = 1, .dots = gathered.mid(taken, rasterBytes)},
                across, down);
    gathered.remove(0, taken);
}

void Decoder::startColumns(const PrinterCommand &)
{
    whole = &Decoder::addColumns;
}

void Decoder::addColumns()
{
    const int mode = current.parameter(0);
    const int bytes = mode < 32 ? 1 : 3; // of a column, the top dot in the highest bit
    Picture dots{.left = 0, .width = current.wideParameter(1), .height = bytes * 8, .dots = {}};
    dots.dots.fill('\0', qsizetype(dots.bytesPerRow()) * dots.height);
    for (int x = 0; x < dots.width; ++x) {
        for (int y = 0; y < dots.height; ++y) {
            if (byteAt(gathered, x * bytes + y / 8) & 0x80 >> y % 8)
                blacken(dots.dots, y * dots.bytesPerRow() * 8 + x);
        }
    }
    addDots(dots, mode & 1 ? 1 : 2, 3 / bytes);
    pictureEndsWithRow = true;
}

void Decoder::startGraphics(const PrinterCommand &)
{
    whole = &Decoder::addGraphics;
}

void Decoder::addGraphics()
{
    const int function = byteAt(gathered, 1);
    if (function == 112) {
        graphics = {.left = 0, .width = wideAt(gathered, 6), .height = wideAt(gathered, 8), .dots = {}};
        graphics.dots = gathered.mid(graphicsHead);
        const bool isThere = graphics.dots.size() >= qsizetype(graphics.bytesPerRow()) * graphics.height;
        if (!isThere || graphics.height > maxGraphicsHeight)
            graphics = Picture();
    } else if (function == 2 || function == 50) {
        addDots(graphics, 1, 1);
    }
}

void Decoder::startCode(const PrinterCommand &)
{
    whole = &Decoder::addCode;
}

void Decoder::addCode()
{
    constexpr int qr = 49;
    if (byteAt(gathered, 0) != qr) {
        tellUnseen(current);
        return;
    }
    if (byteAt(gathered, 1) != 81)
        codePicture = Picture();
    switch (byteAt(gathered, 1)) {
    case 67:
        codeModule = std::clamp(byteAt(gathered, 2), 1, 16);
        break;
    case 69:
        codeLevel = std::clamp(byteAt(gathered, 2) - '0', 0, 3);
        break;
    case 80:
        codeText = gathered.mid(3);
        break;
    case 81:
        printCode();
        break;
    default:
        break;
    }
}

void Decoder::printCode()
{
    if (codePicture.height == 0)
        codePicture = qrCode(codeText, codeLevel, codeModule);
    finishPicture();
    if (codePicture.height == 0) {
        remark(u"a QR code without a text that fits"_s);
    } else if (codePicture.width > profile.dots) {
        remark(u"a QR code wider than the paper, which the printer leaves out"_s);
    } else {
        addDots(codePicture, 1, 1);
        finishPicture();
        remark(u"QR code of %1"_s.arg(quoted(codeText)));
    }
}

void Decoder::startBarCode(const PrinterCommand &)
{
    whole = &Decoder::addBarCode;
}

void Decoder::addBarCode()
{
    remark(u"%1 of %2, not drawn"_s.arg(current.meaning(), quoted(gathered)));
}

void Decoder::printStoredLogo(const PrinterCommand &command)
{
    finishPicture();
    remark(u"picture %1 of the printer's memory"_s.arg(command.parameter(0)));
}

void Decoder::printUnseenPicture(const PrinterCommand &command)
{
    finishPicture();
    remark(u"a picture at byte %1 is not shown"_s.arg(command.offset));
}

/// Adds `dots`, each of them `across` wide and `down` high, to the picture.
void Decoder::addDots(const Picture &dots, int across, int down)
{
    const int dotsAcross = std::min(dots.width * across, maxPictureDots);
    for (int y = 0; y < dots.height * down; ++y) {
        if (dotsAcross == dots.width) {
            const int bytes = dots.bytesPerRow();
            addPictureLine(dots.dots.mid(qsizetype(y / down) * bytes, bytes), dotsAcross);
            continue;
        }
        QByteArray line((dotsAcross + 7) / 8, '\0');
        for (int x = 0; x < dotsAcross; ++x) {
            if (dots.isBlack(x / across, y / down))
                blacken(line, x);
        }
        addPictureLine(line, dotsAcross);
    }
}

void Decoder::addPictureLine(const QByteArray &line, int dotsAcross)
{
    if (picture.height == bandHeight || (picture.height > 0 && picture.width != dotsAcross))
        finishPicture();
    picture.left = state.margin + indentation(dotsAcross);
    picture.width = dotsAcross;
    picture.dots += line;
    ++picture.height;
    pictureEndsWithRow = false;
}

void Decoder::finishPicture()
{
    pictureEndsWithRow = false;
    if (picture.height == 0)
        return;
    openStrip();
    painter.picture(picture);
    picture = Picture();
}
