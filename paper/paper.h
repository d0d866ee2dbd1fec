#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

/// What stands on a roll of paper: strips of rows of cells, and what happens between the rows.
///
/// Readers (of the line printer's stream, of the register's lines) hand it on row by row as they go, painters
/// take it row by row: nobody holds a whole job, so its length costs no memory.
namespace paper {

/// How one character is printed.
struct Style
{
    bool bold = false;
    bool doubleHeight = false;
    bool doubleWidth = false;
    bool underlined = false;
    bool inverse = false;

    bool operator==(const Style &) const = default;
};

/// One character, its style, and whether the stream is broken at it.
struct Cell
{
    /// Never a control character: readers put its picture there (U+2400 and on), and U+FFFD for what is no
    /// character at all. So each painter may write it as it stands.
    char32_t character = U' ';
    Style style;
    bool isBroken = false; ///< the reader found a fault here

    bool operator==(const Cell &) const = default;
};

struct Row
{
    std::vector<Cell> cells;
    QString meaning;       ///< what a register command does, in words; "" for a row of paper
    bool isNarrow = false; ///< printed in a narrow font, `narrowColumns` of which fill the paper
};

/// How many characters of the narrow font stand on paper of `columns`: four take the room of three.
inline int narrowColumns(int columns)
{
    return columns * 4 / 3;
}

/// Dots of a picture as the head burns them: 12 across a column and 24 down a row of text.
struct Picture
{
    static constexpr int dotsPerColumn = 12;
    static constexpr int dotsPerRow = 24;

    int left = 0; ///< dots between the edge of the paper and the picture
    int width = 0;
    int height = 0;
    /// Rows of `bytesPerRow` bytes, the left dot in the highest bit; a set bit is black.
    QByteArray dots;

    int bytesPerRow() const { return (width + 7) / 8; }
    /// What it takes, blanks at the left included, in columns and rows of text begun.
    int columns() const { return (left + width + dotsPerColumn - 1) / dotsPerColumn; }
    int rows() const { return (height + dotsPerRow - 1) / dotsPerRow; }
    /// False outside the picture too.
    bool isBlack(int x, int y) const;
};

/// The picture in the characters of text that come nearest to it, a row for every 24 dots begun.
std::vector<Row> rowsOf(const Picture &picture);

/// What happens between two rows.
enum class Event { Cut, Drawer, TearOff };

/// What a strip is of.
enum class StripKind {
    Paper,    ///< rows of a roll
    Register, ///< commands to a cash register, each with its meaning
};

/// Takes what a reader reads, in the order of the paper.
class Painter
{
public:
    virtual ~Painter() = default;
    virtual void beginStrip(StripKind kind) = 0;
    virtual void row(const Row &row) = 0;
    /// A piece of a picture, which may continue the one before it. By default it is painted with rows of
    /// characters.
    virtual void picture(const Picture &picture);
    virtual void event(Event event) = 0;
    /// Tells what is not on the paper but about it: the sum that a register will show. For people; a painter
    /// that shows rows only leaves it out.
    virtual void remark(const QString &text) = 0;
    virtual void endStrip() = 0;
};

/// What is wrong with a stream, and where: lines and columns count from 1, columns in characters.
struct Fault
{
    qint64 line = 1;
    qint64 column = 1;
    QString what;
    bool isEarlyEnd = false; ///< the stream should go on here
};

/// Columns that a character takes on paper: 0 for a combining mark, 2 for a wide (East Asian) one, else 1.
int columnsOf(char32_t character);

} // namespace paper
