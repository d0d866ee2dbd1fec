// The reader of finished outputs, and the painters that need no pictures.
//
// An input is a byte that chooses encoding, screen and paper, and the stream.

#include "streamreader.h"
#include "stripwidths.h"
#include "target.h"
#include "terminalpainter.h"
#include "textpainter.h"

#include <algorithm>
#include <sstream>

namespace {

constexpr const char *encodings[] = {"UTF-8", "ISO-8859-15", "EUC-JP", "US-ASCII"};

/// Checks the order of what is handed on, and writes the stream that it came from, without its closings.
class Witness : public paper::Painter
{
public:
    void beginStrip(paper::StripKind kind) override
    {
        require(!isInside, "strips stand one behind the other");
        isInside = true;
        isRegister = kind == paper::StripKind::Register;
        stream += isRegister ? "\n" : "\nj\n";
    }
    void row(const paper::Row &row) override
    {
        require(isInside, "rows stand in strips");
        std::string text;
        for (const paper::Cell &cell : row.cells) {
            const char32_t character = cell.character;
            require(character >= 0x20 && (character < 0x7f || character > 0x9f),
                    "no cell has a control character");
            hasBrokenCell = hasBrokenCell || cell.isBroken;
            paper::appendUtf8(text, character);
        }
        ++rows;
        add(QByteArray::fromStdString(text), !row.meaning.isEmpty());
    }
    void event(paper::Event) override { require(false, "this stream has no events"); }
    void remark(const QString &text) override
    {
        require(isInside && !text.isEmpty(), "remarks stand in strips, and say something");
    }
    void endStrip() override
    {
        require(isInside, "only a strip that began can end");
        isInside = false;
        ++strips;
    }

    QByteArray stream;
    bool isInside = false;
    bool hasBrokenCell = false;
    bool isAmbiguous = false; ///< a row among commands may have had an opening quote or not
    qint64 rows = 0;
    qint64 strips = 0;

private:
    void add(const QByteArray &text, bool hasMeaning)
    {
        isAmbiguous = isAmbiguous || (isRegister && !hasMeaning);
        const bool hasReturn = text.startsWith('"') || text.endsWith("H4M");
        if (isRegister)
            stream += text + (hasReturn ? "\r\n" : "\n");
        else
            stream += '"' + text + "\"@\n";
    }

    bool isRegister = false;
};

/// Reads the stream in pieces; returns the number of faults.
qint64 readIn(qsizetype piece, const QByteArray &stream, const QByteArray &encoding, paper::Painter &painter)
{
    qint64 faults = 0;
    paper::StreamReader reader(encoding, painter, [&faults](const paper::Fault &fault) {
        require(fault.line >= 1 && fault.column >= 1 && !fault.what.isEmpty(),
                "a fault has a place and a reason");
        ++faults;
    });
    for (qsizetype at = 0; at < stream.size(); at += piece)
        reader.read(QByteArrayView(stream).sliced(at, qMin(piece, stream.size() - at)));
    reader.finish();
    return faults;
}

QByteArray withoutClosings(const QByteArray &stream)
{
    QByteArray rest;
    qsizetype begin = 0;
    while (begin < stream.size()) {
        const qsizetype end = qMax(stream.indexOf('\n', begin), begin);
        const QByteArray line = stream.sliced(begin, end - begin + 1);
        if (line != "J\n")
            rest += line;
        begin = end + 1;
    }
    return rest;
}

void checkText(const QByteArray &stream, const QByteArray &encoding, const Witness &witness)
{
    std::ostringstream text;
    paper::TextPainter painter(text);
    readIn(stream.size() + 1, stream, encoding, painter);
    const std::string lines = text.str();
    const auto ends = std::ranges::count(lines, '\n');
    const auto separators = std::ranges::count(lines, '\f');
    require(separators == std::max<qint64>(0, witness.strips - 1), "a form feed stands between two strips");
    require(ends == witness.rows + separators, "each row is a line");
}

void checkTerminal(const QByteArray &stream, const QByteArray &encoding, std::uint8_t choice)
{
    paper::Screen screen;
    screen.encoding = encoding;
    screen.columns = choice % 4 * 13;
    screen.hasColors = choice % 8 > 3;
    std::ostringstream text;
    paper::TerminalPainter painter(text, screen, choice % 16 > 7);
    painter.setWidths({choice % 5 * 9 + 1, 32});
    readIn(stream.size() + 1, stream, encoding, painter);
    const std::string shown = text.str();
    const bool hasControls = std::ranges::any_of(shown, [&](char byte) {
        return byte >= 0 && byte < 0x20 && byte != '\n' && !(byte == '\033' && screen.hasColors);
    });
    require(!hasControls, "no control character of the stream reaches the terminal");
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return notForTheCorpus;
    const std::uint8_t choice = data[0];
    const QByteArray encoding = encodings[choice % 4];
    const QByteArray stream(reinterpret_cast<const char *>(data + 1), qsizetype(size) - 1);

    Witness whole;
    Witness inPieces;
    const qint64 faults = readIn(stream.size() + 1, stream, encoding, whole);
    require(readIn(choice % 7 + 1, stream, encoding, inPieces) == faults && inPieces.stream == whole.stream,
            "it does not matter in which pieces a stream comes");
    require(!whole.isInside, "every strip ends");
    require(!whole.hasBrokenCell || faults > 0, "what is marked is told");
    if (faults == 0 && encoding == "UTF-8" && !whole.isAmbiguous)
        require(withoutClosings(stream) == whole.stream, "a stream without faults is all rows and brackets");
    checkText(stream, encoding, whole);
    checkTerminal(stream, encoding, choice);
    paper::StripWidths widths(40);
    readIn(stream.size() + 1, stream, encoding, widths);
    require(qint64(widths.widths().size()) == whole.strips, "each strip has a width");
    return 0;
}
