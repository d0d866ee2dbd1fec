#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

class QTextCodec;

namespace paper {

/// Turns the bytes of a line into characters. A line is decoded by itself: no encoding of a locale carries
/// anything over a line feed.
class LineDecoder
{
public:
    /// `encoding` is a name such as "ISO-8859-15"; one that is not known counts as UTF-8.
    explicit LineDecoder(const QByteArray &encoding);

    /// Bytes that are no character in the encoding become U+FFFD.
    QString decode(QByteArrayView line);
    /// Whether the last line had such bytes. A U+FFFD in it may otherwise be a character of the text.
    bool hadWrongBytes() const { return isWrong; }

    /// What the encoding is called.
    QString name() const;

private:
    QString decodeUtf8(QByteArrayView line);
    QString decodeOther(QByteArrayView line);

    QTextCodec *codec; ///< owned by the toolkit
    bool isUtf8;
    bool isWrong = false;
};

} // namespace paper
