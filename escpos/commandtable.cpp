#include "commandtable.h"

#include "codepages.h"
#include "commands.h"
#include "decoder.h"

#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A view that keeps zero bytes, which the usual constructor takes for the end.
template <std::size_t size>
constexpr QByteArrayView raw(const char (&bytes)[size])
{
    return QByteArrayView(bytes, size - 1);
}

constexpr auto onOff = "off|on"_L1;
constexpr auto none = ""_L1;

constexpr CommandKind kinds[] = {
    // What ends a row, or stands in it.
    {raw("\x00"), Shape::Parameters, 0, "nothing"_L1, none, nullptr},
    {raw("\x09"), Shape::Parameters, 0, "to the next tab stop"_L1, none, &Decoder::tabulate},
    {raw("\x0A"), Shape::Parameters, 0, "end of the row"_L1, none, &Decoder::endRow},
    {raw("\x0C"), Shape::Parameters, 0, "end of the page"_L1, none, &Decoder::endRow},
    {raw("\x0D"), Shape::Parameters, 0, "carriage return, ignored"_L1, none, nullptr},
    {raw("\x18"), Shape::Parameters, 0, "the row in the making is dropped"_L1, none, &Decoder::dropRow},
    {command::feed, Shape::Parameters, 1, "feed %1 rows"_L1, none, &Decoder::feedRows},
    {raw("\x1B\x4A"), Shape::Parameters, 1, "feed %1 dots"_L1, none, &Decoder::feedDots},
    {raw("\x1B\x24"), Shape::Parameters, 2, "to a place on the row, in dots"_L1, none, &Decoder::moveTo},
    {raw("\x1B\x5C"), Shape::Parameters, 2, "move along the row, in dots"_L1, none, &Decoder::moveBy},
    {raw("\x1B\x44"), Shape::UntilZero, 0, "tab stops"_L1, none, &Decoder::startTabStops},

    // The state of the printer.
    {command::initialise, Shape::Parameters, 0, "initialise"_L1, none, &Decoder::initialise},
    {command::leaveChinese, Shape::Parameters, 0, "leave Chinese mode"_L1, none, &Decoder::leaveChinese},
    {raw("\x1C\x26"), Shape::Parameters, 0, "Chinese mode"_L1, none, &Decoder::enterChinese},
    {command::codePage, Shape::Parameters, 1, "code page %1"_L1, none, &Decoder::setCodePage},
    {command::international, Shape::Parameters, 1, "international characters %1"_L1, none,
     &Decoder::setInternational},
    {command::font, Shape::Parameters, 1, "font %1"_L1, "A|B|C"_L1, &Decoder::setFont},
    {command::size, Shape::Parameters, 1, "size"_L1, none, &Decoder::setSize},
    {raw("\x1B\x21"), Shape::Parameters, 1, "print mode"_L1, none, &Decoder::setPrintMode},
    {command::bold, Shape::Parameters, 1, "bold %1"_L1, onOff, &Decoder::setBold},
    {raw("\x1B\x47"), Shape::Parameters, 1, "double strike %1"_L1, onOff, &Decoder::setBold},
    {raw("\x1B\x2D"), Shape::Parameters, 1, "underline: %1"_L1, "off|one dot|two dots"_L1,
     &Decoder::setUnderlined},
    {raw("\x1D\x42"), Shape::Parameters, 1, "white on black %1"_L1, onOff, &Decoder::setInverse},
    {raw("\x1B\x61"), Shape::Parameters, 1, "justify: %1"_L1, "left|centre|right"_L1, &Decoder::setJustify},
    {raw("\x1B\x20"), Shape::Parameters, 1, "%1 dots between characters"_L1, none, &Decoder::tellUnlessOff},
    {raw("\x1B\x32"), Shape::Parameters, 0, "usual row height"_L1, none, nullptr},
    {raw("\x1B\x33"), Shape::Parameters, 1, "row height %1 dots"_L1, none, nullptr},
    {raw("\x1B\x3D"), Shape::Parameters, 1, "choose the device"_L1, none, nullptr},
    {raw("\x1B\x53"), Shape::Parameters, 0, "standard mode"_L1, none, nullptr},
    {raw("\x1B\x56"), Shape::Parameters, 1, "turn characters: %1"_L1, "off|by a quarter|by a quarter"_L1,
     &Decoder::tellUnlessOff},
    {raw("\x1B\x63\x33"), Shape::Parameters, 1, "which paper sensors count"_L1, none, nullptr},
    {raw("\x1B\x63\x34"), Shape::Parameters, 1, "which paper sensors stop it"_L1, none, nullptr},
    {raw("\x1B\x63\x35"), Shape::Parameters, 1, "panel buttons: %1"_L1, "on|off"_L1, nullptr},
    {raw("\x1B\x72"), Shape::Parameters, 1, "colour: %1"_L1, "black|red"_L1, &Decoder::tellUnlessOff},
    {raw("\x1B\x7B"), Shape::Parameters, 1, "upside down %1"_L1, onOff, &Decoder::tellUnlessOff},
    {raw("\x1B\x25"), Shape::Parameters, 1, "characters of one's own %1"_L1, onOff, &Decoder::tellUnlessOff},
    {raw("\x1B\x3F"), Shape::Parameters, 1, "drop a character of one's own"_L1, none, nullptr},
    {raw("\x1B\x55"), Shape::Parameters, 1, "print in one direction: %1"_L1, onOff, nullptr},
    {raw("\x1C\x21"), Shape::Parameters, 1, "print mode of Chinese characters"_L1, none, nullptr},
    {raw("\x1C\x2D"), Shape::Parameters, 1, "underline of Chinese characters"_L1, none, nullptr},
    {raw("\x1C\x57"), Shape::Parameters, 1, "large Chinese characters %1"_L1, onOff, nullptr},
    {raw("\x1C\x43"), Shape::Parameters, 1, "encoding of Chinese characters"_L1, none, nullptr},
    {raw("\x1C\x53"), Shape::Parameters, 2, "space around Chinese characters"_L1, none, nullptr},
    {raw("\x1D\x4C"), Shape::Parameters, 2, "left margin, in dots"_L1, none, &Decoder::setMargin},
    {raw("\x1D\x50"), Shape::Parameters, 2, "units of motion"_L1, none, &Decoder::tellUnlessOff},
    {raw("\x1D\x57"), Shape::Parameters, 2, "width of the print area, in dots"_L1, none,
     &Decoder::setPrintArea},
    {raw("\x1D\x62"), Shape::Parameters, 1, "smoothing %1"_L1, onOff, nullptr},

    // Pages that are put together before they are printed. Their rows are shown in the order of the stream.
    {raw("\x1B\x4C"), Shape::Parameters, 0, "page mode"_L1, none, &Decoder::tellUnseen},
    {raw("\x1B\x57"), Shape::Parameters, 8, "area of the page"_L1, none, nullptr},
    {raw("\x1B\x54"), Shape::Parameters, 1, "direction of the page"_L1, none, nullptr},
    {raw("\x1D\x24"), Shape::Parameters, 2, "to a place down the page"_L1, none, nullptr},
    {raw("\x1D\x5C"), Shape::Parameters, 2, "move down the page"_L1, none, nullptr},
    {raw("\x1B\x0C"), Shape::Parameters, 0, "print the page"_L1, none, &Decoder::endRow},

    // What happens between rows.
    {raw("\x1D\x56\x00"), Shape::Parameters, 0, "cut"_L1, none, &Decoder::cut},
    {raw("\x1D\x56\x01"), Shape::Parameters, 0, "cut, but for a bridge"_L1, none, &Decoder::cut},
    {raw("\x1D\x56\x30"), Shape::Parameters, 0, "cut"_L1, none, &Decoder::cut},
    {raw("\x1D\x56\x31"), Shape::Parameters, 0, "cut, but for a bridge"_L1, none, &Decoder::cut},
    {raw("\x1D\x56\x41"), Shape::Parameters, 1, "feed to the cutter and %1 dots, then cut"_L1, none,
     &Decoder::cut},
    {raw("\x1D\x56\x42"), Shape::Parameters, 1,
     "feed to the cutter and %1 dots, then cut, but for a bridge"_L1, none, &Decoder::cut},
    {raw("\x1B\x69"), Shape::Parameters, 0, "cut"_L1, none, &Decoder::cut},
    {raw("\x1B\x6D"), Shape::Parameters, 0, "cut, but for a bridge"_L1, none, &Decoder::cut},
    {command::drawer, Shape::Parameters, 3, "open the drawer on %1"_L1, "pin 2|pin 5"_L1,
     &Decoder::openDrawer},
    {raw("\x10\x14\x01"), Shape::Parameters, 2, "open the drawer at once, on %1"_L1, "pin 2|pin 5"_L1,
     &Decoder::openDrawer},
    {raw("\x1B\x42"), Shape::Parameters, 2, "beep %1 times"_L1, none, nullptr},
    {raw("\x07"), Shape::Parameters, 0, "beep"_L1, none, nullptr},

    // Pictures and codes.
    {command::raster, Shape::RasterPicture, 5, "picture"_L1, none, &Decoder::startRaster},
    {raw("\x1B\x2A"), Shape::ColumnPicture, 3, "picture, column by column"_L1, none, &Decoder::startColumns},
    {raw("\x1D\x2A"), Shape::KeptPicture, 2, "keep a picture"_L1, none, nullptr},
    {raw("\x1D\x2F"), Shape::Parameters, 1, "print the picture kept"_L1, none, &Decoder::printUnseenPicture},
    {command::storedLogo, Shape::Parameters, 2, "print stored picture %1"_L1, none,
     &Decoder::printStoredLogo},
    {raw("\x1D\x28\x4C"), Shape::Sized, 0, "graphics"_L1, none, &Decoder::startGraphics},
    {raw("\x1D\x28\x6B"), Shape::Sized, 0, "QR and other codes"_L1, none, &Decoder::startCode},
    {raw("\x1D\x48"), Shape::Parameters, 1, "text at bar codes: %1"_L1, "none|above|below|both"_L1, nullptr},
    {raw("\x1D\x66"), Shape::Parameters, 1, "font of bar codes: %1"_L1, "A|B"_L1, nullptr},
    {raw("\x1D\x68"), Shape::Parameters, 1, "bar codes %1 dots high"_L1, none, nullptr},
    {raw("\x1D\x77"), Shape::Parameters, 1, "bars %1 dots wide"_L1, none, nullptr},
    {raw("\x1D\x6B\x00"), Shape::UntilZero, 0, "bar code UPC-A"_L1, none, &Decoder::startBarCode},
    {raw("\x1D\x6B\x01"), Shape::UntilZero, 0, "bar code UPC-E"_L1, none, &Decoder::startBarCode},
    {raw("\x1D\x6B\x02"), Shape::UntilZero, 0, "bar code EAN-13"_L1, none, &Decoder::startBarCode},
    {raw("\x1D\x6B\x03"), Shape::UntilZero, 0, "bar code EAN-8"_L1, none, &Decoder::startBarCode},
    {raw("\x1D\x6B\x04"), Shape::UntilZero, 0, "bar code Code 39"_L1, none, &Decoder::startBarCode},
    {raw("\x1D\x6B\x05"), Shape::UntilZero, 0, "bar code ITF"_L1, none, &Decoder::startBarCode},
    {raw("\x1D\x6B\x06"), Shape::UntilZero, 0, "bar code Codabar"_L1, none, &Decoder::startBarCode},
    {raw("\x1D\x6B\x41"), Shape::Counted, 1, "bar code UPC-A"_L1, none, &Decoder::startBarCode},
    {raw("\x1D\x6B\x42"), Shape::Counted, 1, "bar code UPC-E"_L1, none, &Decoder::startBarCode},
    {raw("\x1D\x6B\x43"), Shape::Counted, 1, "bar code EAN-13"_L1, none, &Decoder::startBarCode},
    {raw("\x1D\x6B\x44"), Shape::Counted, 1, "bar code EAN-8"_L1, none, &Decoder::startBarCode},
    {raw("\x1D\x6B\x45"), Shape::Counted, 1, "bar code Code 39"_L1, none, &Decoder::startBarCode},
    {raw("\x1D\x6B\x46"), Shape::Counted, 1, "bar code ITF"_L1, none, &Decoder::startBarCode},
    {raw("\x1D\x6B\x47"), Shape::Counted, 1, "bar code Codabar"_L1, none, &Decoder::startBarCode},
    {raw("\x1D\x6B\x48"), Shape::Counted, 1, "bar code Code 93"_L1, none, &Decoder::startBarCode},
    {raw("\x1D\x6B\x49"), Shape::Counted, 1, "bar code Code 128"_L1, none, &Decoder::startBarCode},

    // Questions to the printer.
    {raw("\x10\x04"), Shape::Parameters, 1, "ask for its state %1, at once"_L1, none, nullptr},
    {raw("\x10\x05"), Shape::Parameters, 1, "recover from an error"_L1, none, nullptr},
    {raw("\x1B\x76"), Shape::Parameters, 0, "ask for paper"_L1, none, nullptr},
    {raw("\x1D\x49"), Shape::Parameters, 1, "ask who it is"_L1, none, nullptr},
    {raw("\x1D\x28\x48"), Shape::Sized, 0, "ask to tell when all this is printed"_L1, none, nullptr},
    {raw("\x1D\x61"), Shape::Parameters, 1, "tell its state from now on"_L1, none, nullptr},
    {raw("\x1D\x72"), Shape::Parameters, 1, "ask for its state %1"_L1, none, nullptr},

    // What else tells its own length.
    {raw("\x1B\x28"), Shape::Sized, 1, "a command of its own"_L1, none, &Decoder::tellUnseen},
    {raw("\x1C\x28"), Shape::Sized, 1, "a command of its own"_L1, none, &Decoder::tellUnseen},
    {raw("\x1D\x28"), Shape::Sized, 1, "a command of its own"_L1, none, nullptr},
    {raw("\x1D\x38"), Shape::LongSized, 1, "large graphics"_L1, none, &Decoder::printUnseenPicture},
};

QString valueName(QLatin1StringView values, int value)
{
    const QStringList names = QString(values).split(u'|');
    const int index = value >= '0' ? value - '0' : value; // many commands take the digit as well
    return values.isEmpty() || index >= names.size() ? QString::number(value) : names[index];
}

} // namespace

std::span<const CommandKind> commandKinds()
{
    return kinds;
}

int PrinterCommand::parameter(qsizetype index) const
{
    const qsizetype place = kind->bytes.size() + index;
    return place < bytes.size() ? static_cast<unsigned char>(bytes[place]) : 0;
}

QString PrinterCommand::meaning() const
{
    const int first = parameter(0);
    if (kind->bytes == command::size)
        return u"size: %1 wide, %2 high"_s.arg(first / 16 + 1).arg(first % 16 + 1);
    if (kind->bytes == command::codePage && findCodePage(first))
        return u"code page %1, %2"_s.arg(first).arg(findCodePage(first)->name);
    if (kind->bytes == command::international && findInternationalSet(first))
        return u"international characters: %1"_s.arg(findInternationalSet(first)->name);
    if (kind->bytes == command::raster)
        return u"picture, %1 x %2 dots"_s.arg(wideParameter(1) * 8).arg(wideParameter(3));
    return QString(kind->words).replace("%1"_L1, valueName(kind->values, first));
}

QString hexOf(QByteArrayView bytes)
{
    return QString::fromLatin1(bytes.toByteArray().toHex(' ').toUpper());
}
