#include "hexlisting.h"

#include "commands.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype bytesPerLine = 16;

} // namespace

HexListing::HexListing(std::function<void(const QString &)> lineTaker)
    : reader(*this), takeLine(std::move(lineTaker))
{
}

void HexListing::end()
{
    reader.end();
    finish();
}

void HexListing::text(qint64 offset, QByteArrayView bytes)
{
    collect(Collected::Text, offset, bytes);
}

void HexListing::data(qint64 offset, QByteArrayView bytes)
{
    collect(Collected::Data, offset, bytes);
}

void HexListing::command(const PrinterCommand &command)
{
    finish();
    list(command.offset, command.bytes, command.meaning());
    follow(command);
}

/// Keeps to the characters that the printer prints from here on.
void HexListing::follow(const PrinterCommand &command)
{
    const int number = command.parameter(0);
    if (command.kind->bytes == command::initialise)
        characters = CharacterTable();
    else if (command.kind->bytes == command::codePage && findCodePage(number))
        characters.page = findCodePage(number);
    else if (command.kind->bytes == command::international && findInternationalSet(number))
        characters.set = findInternationalSet(number);
}

void HexListing::endOfCommand()
{
    finish();
}

void HexListing::unknown(qint64 offset, QByteArrayView bytes)
{
    finish();
    list(offset, bytes, u"unknown command, skipped"_s);
}

void HexListing::torn(qint64 offset, QByteArrayView bytes)
{
    finish();
    const bool isListed = offset < listed; // and only its data is torn
    list(isListed ? listed : offset, isListed ? QByteArrayView() : bytes,
         u"the stream ends in the middle of this command"_s);
}

/// Lines are full whatever the pieces in which a text comes.
void HexListing::collect(Collected kind, qint64 offset, QByteArrayView bytes)
{
    if (collected != kind)
        finish();
    collected = kind;
    for (const char byte : bytes) {
        if (collectedBytes.isEmpty())
            collectedOffset = offset;
        collectedBytes += byte;
        ++offset;
        if (collectedBytes.size() == bytesPerLine) {
            finish();
            collected = kind;
        }
    }
}

void HexListing::finish()
{
    if (!collectedBytes.isEmpty())
        list(collectedOffset, collectedBytes,
             collected == Collected::Text ? quoted(collectedBytes) : u"data"_s);
    collectedBytes.clear();
    collected = Collected::Nothing;
}

void HexListing::list(qint64 offset, QByteArrayView bytes, const QString &meaning)
{
    constexpr int offsetDigits = 8;
    listed = offset + bytes.size();
    const QString place = QString::number(offset, 16).toUpper().rightJustified(offsetDigits, u'0');
    takeLine(place + u"  "_s + hexOf(bytes).leftJustified(bytesPerLine * 3, u' ') + u' ' + meaning);
}

QString HexListing::quoted(QByteArrayView bytes) const
{
    QString text;
    for (const char byte : bytes)
        text += QChar(characters.characterOf(static_cast<unsigned char>(byte)));
    return u'"' + text + u'"';
}
