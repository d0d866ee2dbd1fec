#include "contentkind.h"

#include "registercommand.h"

#include <QByteArray>

using namespace Qt::Literals::StringLiterals;

namespace paper {

namespace {

/// Whether it is XML, whatever stands for a character: marks and zero bytes of the wide encodings are passed
/// over, and so is white space, though a reader may object to it.
bool isXml(QByteArrayView beginning)
{
    for (const auto mark : {"\xef\xbb\xbf", "\xff\xfe", "\xfe\xff"}) {
        if (beginning.startsWith(mark))
            beginning = beginning.sliced(qstrlen(mark));
    }
    constexpr QByteArrayView passedOver("\0 \t\r\n", 5);
    while (!beginning.isEmpty() && passedOver.contains(beginning.front()))
        beginning = beginning.sliced(1);
    return beginning.startsWith('<');
}

/// Whether a stream can begin with this line.
bool isOfStream(QByteArrayView line)
{
    if (line == "j" || line == "J" || line.startsWith('"') || line.endsWith("\"@"))
        return true;
    const QString text = QString::fromLatin1(line.endsWith('\r') ? line.chopped(1) : line);
    return parseCommand(text).has_value();
}

bool isOutput(QByteArrayView beginning)
{
    const bool hasOpening = beginning.startsWith('\n');
    while (beginning.startsWith('\n'))
        beginning = beginning.sliced(1);
    if (beginning.isEmpty())
        return hasOpening; // of a register that was sent nothing
    const qsizetype length = beginning.indexOf('\n');
    return isOfStream(length < 0 ? beginning : beginning.first(length));
}

/// Whether the first control character, but for those of plain text, is one that commands begin with.
bool isForReceiptPrinter(QByteArrayView beginning)
{
    constexpr QByteArrayView plain("\0\t\n\f\r", 5);
    constexpr QByteArrayView commands("\x10\x1b\x1c\x1d");
    for (const char byte : beginning) {
        const bool isControl = static_cast<unsigned char>(byte) < 0x20;
        if (isControl && !plain.contains(byte))
            return commands.contains(byte);
    }
    return false;
}

} // namespace

ContentKind contentKind(QByteArrayView beginning)
{
    if (isXml(beginning))
        return ContentKind::Job;
    if (isOutput(beginning))
        return ContentKind::Output;
    return isForReceiptPrinter(beginning) ? ContentKind::ReceiptPrinter : ContentKind::Neither;
}

} // namespace paper
