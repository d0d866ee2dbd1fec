#pragma once

#include <QByteArrayView>
#include <QString>

#include <istream>
#include <string>

/// The grammar of the text form. Whoever needs to know what stands where in such a file listens here: the
/// reader, which makes a tree of it, and everything that tells people what the reader makes of their file.
namespace libconfig {

/// Names, keys and values are cut to this many bytes; what follows is read and dropped.
inline constexpr qsizetype maxTextLength = 2047;
/// Blocks nested deeper than this end the reading: what was read so far stays.
inline constexpr int maxDepth = 1000;

/// A place in a file. Lines and columns count from 1; a column is a character, in the text form a byte.
struct Position
{
    qint64 line = 1;
    qint64 column = 1;
};

/// What a piece of the text form is, by what ends it:
///
///     file  = items [Unread]
///     items = { block | pair } [Stray]
///     block = BlockName Colon [BeforeBrace] OpenBrace items CloseBrace [BehindBrace] Semicolon
///     pair  = Key Equals Value Semicolon
///
/// The end of the file may come anywhere. A "}" outside all blocks ends the reading, as do blocks nested too
/// deep: there the items end behind the "{".
enum class TokenKind {
    BlockName,
    Colon,
    BeforeBrace, ///< between a block's name and its "{", dropped by the reader
    OpenBrace,
    Key,
    Equals,
    Value,
    Semicolon,
    Stray, ///< in front of a "}" or the end of the file: belongs to nothing, dropped
    CloseBrace,
    BehindBrace, ///< between a "}" and the next ";", wherever that is: dropped
    Unread,      ///< everything behind the place where the reader stops
};

/// Whether the reader drops a piece of this kind. White space is dropped too, and is no loss.
constexpr bool isSkipped(TokenKind kind)
{
    return kind == TokenKind::BeforeBrace || kind == TokenKind::Stray || kind == TokenKind::BehindBrace ||
           kind == TokenKind::Unread;
}

/// One piece of a file, with the white space around it.
struct Token
{
    TokenKind kind;
    Position at;          ///< of its first byte
    QByteArrayView bytes; ///< its first ones, as many as the tokenizer keeps; gone when the listener returns
    qint64 size;          ///< of the whole piece

    bool isBlank() const { return bytes.trimmed().isEmpty(); }
    /// Whether a name, key or value is longer than the reader takes.
    bool isCut() const { return size > maxTextLength; }
    /// The place of the byte at `offset` of `bytes`.
    Position positionOf(qsizetype offset) const;
    /// The place where the white space in front ends; of the whole piece when it is nothing else.
    Position textAt() const;

    /// A name or a key as the reader takes it: cut, then stripped of white space.
    QString name() const;
    /// A value as the reader takes it: the same, without its quotes.
    QString value() const;
};

/// Is told every piece of a file in its order. The bytes of all pieces, one behind the other, are the file.
class TokenListener
{
public:
    virtual ~TokenListener() = default;
    virtual void token(const Token &token) = 0;
};

/// Takes the pieces from a stream, in one pass and without reading ahead: behind each piece the stream stands
/// at the next one. The memory does not grow with the file.
class Tokenizer
{
public:
    enum class End { Brace, File };

    /// Keeps the first `kept` bytes of each piece. `stream` and `listener` must outlive the tokenizer.
    explicit Tokenizer(std::istream &stream, TokenListener &listener, qsizetype kept = maxTextLength);

    /// Reads a file up to its end, or up to the ";" behind a "}" outside all blocks.
    End readFile();
    /// Reads on behind the "{" of a block, up to the ";" behind its "}".
    End readBlock();

    /// Tells everything behind the place where the reading ended as `Unread`.
    void readRest();

private:
    template <typename IsEnd>
    int collect(IsEnd isEnd);
    int collectUpTo(char end);
    void tell(TokenKind kind);
    void tellUnlessEmpty(TokenKind kind);
    void tellDelimiter(TokenKind kind, char delimiter);
    bool readItem();
    void readBlockStart();
    void readValue();
    void readBlockEnd();
    Position here() const { return {line, taken - lineBegin + 1}; }

    std::istream &stream;
    TokenListener &listener;
    const qsizetype kept;
    int depth = 0; ///< of the block being read, counted in blocks

    std::string text; ///< of the piece being read, its first bytes
    qint64 textSize = 0;
    Position textBegin;

    qint64 taken = 0;
    qint64 line = 1;
    qint64 lineBegin = 0; ///< as an offset
};

/// The same for a file in memory, with all bytes of each piece; what the reader would leave unread comes
/// last.
void tokenize(const QByteArray &content, TokenListener &listener);

/// The next byte of `stream`, nothing at its end, where it is left in a failed state. Also when a file that
/// opened cannot be read, such as a folder: it ends there.
int nextByte(std::istream &stream);
inline constexpr int noByte = -1;

/// `text` for a message: on one line, in quotes, its first 40 characters.
QString quoted(QByteArrayView text);

} // namespace libconfig
