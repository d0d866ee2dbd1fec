#include "linedecoder.h"

#include <QTextCodec>

namespace paper {

namespace {

QTextCodec *codecCalled(const QByteArray &name)
{
    QTextCodec *codec = QTextCodec::codecForName(name);
    return codec ? codec : QTextCodec::codecForName("UTF-8");
}

} // namespace

LineDecoder::LineDecoder(const QByteArray &encoding)
    : codec(codecCalled(encoding)), isUtf8(codec->name() == "UTF-8")
{
}

QString LineDecoder::decode(QByteArrayView line)
{
    return isUtf8 ? decodeUtf8(line) : decodeOther(line);
}

QString LineDecoder::name() const
{
    return QString::fromLatin1(codec->name());
}

QString LineDecoder::decodeUtf8(QByteArrayView line)
{
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader); // a byte order mark is a character like any
    QString text = codec->toUnicode(line.data(), static_cast<int>(line.size()), &state);
    if (state.remainingChars > 0)
        text += QChar(QChar::ReplacementCharacter);
    isWrong = state.invalidChars > 0 || state.remainingChars > 0;
    return text;
}

QString LineDecoder::decodeOther(QByteArrayView line)
{
    // The toolkit drops a character that is cut off by the end, and keeps one that is cut off by a line feed.
    // It does not count wrong bytes here; but none of these encodings has a U+FFFD of its own.
    QString text = codec->toUnicode(line.toByteArray() + '\n');
    text.chop(1);
    isWrong = text.contains(QChar(QChar::ReplacementCharacter));
    return text;
}

} // namespace paper
