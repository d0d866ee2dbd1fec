#include "visiblediff.h"

#include <QByteArrayList>
#include <QStringDecoder>

#include <algorithm>

namespace {

constexpr qsizetype linesShown = 40;

/// The lines of a text, each with its line feed; the last one may have none.
QByteArrayList linesOf(const QByteArray &text)
{
    QByteArrayList lines;
    for (qsizetype begin = 0, end = 0; begin < text.size(); begin = end) {
        const qsizetype feed = text.indexOf('\n', begin);
        end = feed < 0 ? text.size() : feed + 1;
        lines.append(text.sliced(begin, end - begin));
    }
    return lines;
}

bool isUtf8(const QByteArray &bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder(bytes);
    return !decoder.hasError() && text.toUtf8() == bytes;
}

QByteArray visibleByte(char byte, bool lettersPass)
{
    switch (byte) {
    case ' ':
        return "·";
    case '\n':
        return "␊";
    case '\r':
        return "␍";
    case '\t':
        return "␉";
    default:
        break;
    }
    const auto code = static_cast<unsigned char>(byte);
    const bool control = code < 0x20 || code == 0x7f || byte == '\\';
    if (control || (code >= 0x80 && !lettersPass))
        return "\\x" + QByteArray::number(code, 16).rightJustified(2, '0');
    return {1, byte};
}

QByteArray marked(const char *mark, const QByteArrayList &lines)
{
    QByteArray text;
    for (const QByteArray &line : lines.first(std::min(lines.size(), linesShown)))
        text += mark + visible(line) + '\n';
    if (lines.size() > linesShown)
        text += mark + QByteArray("(and ") + QByteArray::number(lines.size() - linesShown) + " lines more)\n";
    return text;
}

} // namespace

QByteArray visible(const QByteArray &bytes)
{
    const bool lettersPass = isUtf8(bytes) && !bytes.contains("·");
    QByteArray text;
    for (const char byte : bytes)
        text += visibleByte(byte, lettersPass);
    return text;
}

QByteArray visibleDiff(const QByteArray &expected, const QByteArray &actual)
{
    if (expected == actual)
        return {};
    const QByteArrayList wanted = linesOf(expected);
    const QByteArrayList found = linesOf(actual);
    const qsizetype shorter = std::min(wanted.size(), found.size());
    const qsizetype head =
        std::mismatch(wanted.begin(), wanted.begin() + shorter, found.begin()).first - wanted.begin();
    qsizetype tail = 0;
    while (tail < shorter - head && wanted.at(wanted.size() - 1 - tail) == found.at(found.size() - 1 - tail))
        ++tail;
    return "line " + QByteArray::number(head + 1) + ":\n" +
           marked("-", wanted.sliced(head, wanted.size() - head - tail)) +
           marked("+", found.sliced(head, found.size() - head - tail));
}
