#include "tokenizer.h"

#include <QByteArray>

#include <algorithm>
#include <limits>
#include <sstream>

using namespace Qt::Literals::StringLiterals;

namespace libconfig {

Position Token::positionOf(qsizetype offset) const
{
    const QByteArrayView before = bytes.first(offset);
    const qsizetype lines = before.count('\n');
    if (lines == 0)
        return {at.line, at.column + offset};
    return {at.line + lines, offset - before.lastIndexOf('\n')};
}

Position Token::textAt() const
{
    return isBlank() ? at : positionOf(bytes.trimmed().data() - bytes.data());
}

QString Token::name() const
{
    // Stripped as bytes: QString::trimmed() would take the no-break space (0xA0) too, which is an ordinary
    // character here.
    return QString::fromLatin1(bytes.first(std::min(bytes.size(), maxTextLength)).trimmed());
}

QString Token::value() const
{
    // Quotes are deleted wherever they stand, and after the stripping: blanks inside the quotes stay.
    return name().remove(u'"');
}

namespace {

/// From the stream's buffer: the stream's own `get` takes several times as long for each byte.
inline int take(std::streambuf &buffer)
{
    static_assert(std::streambuf::traits_type::eof() == noByte);
    try {
        return buffer.sbumpc();
    } catch (const std::ios_base::failure &) {
        return noByte; // a file that opens and cannot be read, such as a folder: it ends here
    }
}

int endOf(std::istream &stream)
{
    stream.setstate(std::ios::eofbit | std::ios::failbit);
    return noByte;
}

} // namespace

int nextByte(std::istream &stream)
{
    const int byte = stream.good() ? take(*stream.rdbuf()) : noByte;
    return byte == noByte ? endOf(stream) : byte;
}

Tokenizer::Tokenizer(std::istream &from, TokenListener &to, qsizetype bytes)
    : stream(from), listener(to), kept(bytes)
{
}

Tokenizer::End Tokenizer::readFile()
{
    depth = 0;
    while (readItem()) {
    }
    return depth < 0 ? End::Brace : End::File;
}

Tokenizer::End Tokenizer::readBlock()
{
    depth = 1;
    while (readItem() && depth > 0) {
    }
    return depth < 1 ? End::Brace : End::File;
}

template <typename IsEnd>
int Tokenizer::collect(IsEnd isEnd)
{
    text.clear();
    textSize = 0;
    textBegin = here();
    const qint64 begin = taken;
    if (!stream.good())
        return noByte;
    std::streambuf &buffer = *stream.rdbuf();
    for (int byte = take(buffer); byte != noByte; byte = take(buffer)) {
        if (isEnd(char(byte))) {
            textSize = taken++ - begin;
            return byte;
        }
        if (qsizetype(text.size()) < kept)
            text.push_back(char(byte));
        ++taken;
        if (byte == '\n') {
            ++line;
            lineBegin = taken;
        }
    }
    textSize = taken - begin;
    return endOf(stream);
}

int Tokenizer::collectUpTo(char end)
{
    return collect([end](char c) { return c == end; });
}

void Tokenizer::tell(TokenKind kind)
{
    listener.token({kind, textBegin, text, textSize});
}

void Tokenizer::tellUnlessEmpty(TokenKind kind)
{
    if (textSize > 0)
        tell(kind);
}

void Tokenizer::tellDelimiter(TokenKind kind, char delimiter)
{
    listener.token({kind, {line, taken - lineBegin}, QByteArrayView(&delimiter, 1), 1});
}

bool Tokenizer::readItem()
{
    switch (collect([](char c) { return c == ':' || c == '=' || c == '}'; })) {
    case ':':
        readBlockStart();
        return true;
    case '=':
        readValue();
        return true;
    case '}':
        readBlockEnd();
        return depth >= 0;
    default:
        tellUnlessEmpty(TokenKind::Stray);
        return false;
    }
}

void Tokenizer::readBlockStart()
{
    tell(TokenKind::BlockName);
    tellDelimiter(TokenKind::Colon, ':');
    const int brace = collectUpTo('{');
    tellUnlessEmpty(TokenKind::BeforeBrace);
    if (brace == noByte)
        return;
    tellDelimiter(TokenKind::OpenBrace, '{');
    if (depth++ == maxDepth)
        endOf(stream); // as if it ended here
}

void Tokenizer::readValue()
{
    tell(TokenKind::Key);
    tellDelimiter(TokenKind::Equals, '=');
    const int semicolon = collectUpTo(';');
    tell(TokenKind::Value);
    if (semicolon != noByte)
        tellDelimiter(TokenKind::Semicolon, ';');
}

void Tokenizer::readBlockEnd()
{
    tellUnlessEmpty(TokenKind::Stray);
    tellDelimiter(TokenKind::CloseBrace, '}');
    const int semicolon = collectUpTo(';'); // a missing one swallows what stands before the next
    tellUnlessEmpty(TokenKind::BehindBrace);
    if (semicolon != noByte)
        tellDelimiter(TokenKind::Semicolon, ';');
    --depth;
}

void Tokenizer::readRest()
{
    stream.clear();
    collect([](char) { return false; });
    tellUnlessEmpty(TokenKind::Unread);
}

void tokenize(const QByteArray &content, TokenListener &listener)
{
    std::istringstream stream(content.toStdString());
    Tokenizer tokenizer(stream, listener, std::numeric_limits<qsizetype>::max());
    tokenizer.readFile();
    tokenizer.readRest();
}

QString quoted(QByteArrayView text)
{
    constexpr qsizetype shown = 40;
    const QString line = QString::fromLatin1(text).simplified();
    return u'"' + (line.size() > shown ? line.first(shown) + "..."_L1 : line) + u'"';
}

} // namespace libconfig
