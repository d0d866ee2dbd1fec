#include "losses.h"

#include "libconfig.h"

#include <QHash>
#include <QXmlStreamReader>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype maxText = libconfig::maxTextLength;
/// The writer puts a blank and two quotes around a value, and the reader counts them.
constexpr qsizetype maxWrittenValue = maxText - 3;

/// Text collected from a place in the file.
struct Piece
{
    QByteArray text;
    Position at; ///< of its first character that is no white space

    bool isBlank() const { return text.trimmed().isEmpty(); }
    QString name() const { return QString::fromLatin1(text.trimmed()); }
    QString quoted() const
    {
        constexpr qsizetype shown = 40;
        const QString line = name().simplified();
        return u'"' + (line.size() > shown ? line.first(shown) + "..."_L1 : line) + u'"';
    }
};

/// Reads the text form as `libconfig::Config` does, and writes down what that drops. One operation for each
/// step of the reader, so that the two can be held against each other.
class TextScan
{
public:
    explicit TextScan(const QByteArray &bytes) : content(bytes) {}

    std::vector<Loss> run()
    {
        scanItems(0);
        std::ranges::stable_sort(losses, {},
                                 [](const Loss &loss) { return std::pair(loss.at.line, loss.at.column); });
        return losses;
    }

private:
    enum class Delimiter { Colon, Equals, Brace, End };

    struct Block
    {
        bool hasItems = false;
        bool hasChild = false; ///< a block that the tree holds
        QHash<QByteArray, Position> pairs;
    };

    void lose(Position at, const QString &what)
    {
        if (!muted)
            losses.push_back({at, what});
    }

    bool next(char &c)
    {
        if (place == content.size())
            return false;
        c = content[place++];
        here = ahead;
        ahead = c == '\n' ? Position{ahead.line + 1, 1} : Position{ahead.line, ahead.column + 1};
        return true;
    }

    /// Everything up to the next of `stops`, which is consumed and left in `stop` (0 at the end of the file).
    Piece collect(QByteArrayView stops, char &stop)
    {
        Piece piece;
        bool blank = true;
        piece.at = ahead;
        while (next(stop)) {
            if (stops.contains(stop))
                return piece;
            piece.text += stop;
            if (blank && !QByteArrayView(" \t\n\v\f\r").contains(stop)) {
                piece.at = here;
                blank = false;
            }
        }
        stop = 0;
        return piece;
    }

    Block scanItems(int depth)
    {
        Block block;
        char stop = 0;
        do {
            const Piece piece = collect(":=}", stop);
            if (stop == ':') {
                scanBlock(piece, block, depth);
            } else if (stop == '=') {
                scanPair(piece, block);
            } else {
                endBlock(piece, stop, depth);
            }
        } while (stop == ':' || stop == '=');
        return block;
    }

    void scanBlock(const Piece &name, Block &parent, int depth)
    {
        checkLength(name);
        parent.hasItems = true;
        char brace = 0;
        const Piece between = collect("{", brace);
        if (!between.isBlank())
            lose(between.at, u"%1 between a block's name and its brace"_s.arg(between.quoted()));
        if (brace == 0) {
            lose(name.at, u"block %1 without a brace"_s.arg(name.quoted()));
            return;
        }
        if (depth == libconfig::maxDepth) {
            lose(name.at, u"blocks nested deeper than %1, and everything behind"_s.arg(depth));
            place = content.size();
            return;
        }
        const bool isLater = depth == 0 && parent.hasChild;
        if (isLater) {
            lose(name.at,
                 u"block %1: only the first top-level block is read and written"_s.arg(name.quoted()));
        }
        const bool wasMuted = std::exchange(muted, muted || isLater); // what is in it is lost with it
        const Block block = scanItems(depth + 1);
        muted = wasMuted;
        if (!block.hasItems)
            lose(name.at, u"empty block %1"_s.arg(name.quoted()));
        parent.hasChild |= block.hasItems;
    }

    void scanPair(const Piece &key, Block &block)
    {
        checkLength(key);
        block.hasItems = true;
        const Position keyAt = key.at;
        const QByteArray name = key.text.first(std::min(key.text.size(), maxText)).trimmed();
        if (const auto earlier = block.pairs.constFind(name); earlier != block.pairs.cend()) {
            lose(*earlier,
                 u"this value of %1: line %2 gives another"_s.arg(key.quoted(), QString::number(keyAt.line)));
        }
        block.pairs[name] = keyAt;
        char stop = 0;
        checkValue(collect(";", stop), key);
    }

    void checkValue(const Piece &value, const Piece &key)
    {
        const QByteArray stripped = value.text.trimmed();
        const bool isQuoted = stripped.size() >= 2 && stripped.startsWith('"') && stripped.endsWith('"');
        const QByteArray inside = isQuoted ? stripped.sliced(1, stripped.size() - 2) : stripped;
        if (inside.contains('"'))
            lose(value.at, u"the quotes inside the value of %1 (is a \";\" missing?)"_s.arg(key.quoted()));
        if (value.text.size() > maxText || inside.size() > maxWrittenValue) {
            lose(value.at, u"the end of the value of %1: a value has room for %2 bytes"_s.arg(
                               key.quoted(), QString::number(maxWrittenValue)));
        }
    }

    void checkLength(const Piece &name)
    {
        if (name.text.size() > maxText) {
            lose(name.at, u"the end of %1: a name has room for %2 bytes, blanks in front included"_s.arg(
                              name.quoted(), QString::number(maxText)));
        }
    }

    /// At a closing brace, or at the end of the file, with what stood in front of it.
    void endBlock(const Piece &piece, char stop, int depth)
    {
        if (!piece.isBlank())
            lose(piece.at, u"%1, which belongs to no setting"_s.arg(piece.quoted()));
        if (stop != '}')
            return;
        const Position brace = here;
        char semicolon = 0;
        const Piece skipped = collect(";", semicolon);
        if (!skipped.isBlank()) {
            lose(skipped.at,
                 u"%1 between a closing brace and the next \";\" (is one missing?)"_s.arg(skipped.quoted()));
        }
        if (depth == 0 && place < content.size())
            lose(brace, u"everything behind this brace, which closes no block"_s);
    }

    const QByteArray content;
    qsizetype place = 0;
    Position here;  ///< of the character read last
    Position ahead; ///< of the next one
    bool muted = false;
    std::vector<Loss> losses;
};

QString xmlLoss(const QXmlStreamReader &reader)
{
    switch (reader.tokenType()) {
    case QXmlStreamReader::Comment:
        return u"the remark \"%1\""_s.arg(reader.text().toString().simplified());
    case QXmlStreamReader::Characters:
        return reader.isWhitespace() ? QString()
                                     : u"the text \"%1\""_s.arg(reader.text().toString().simplified());
    case QXmlStreamReader::ProcessingInstruction:
        return u"the processing instruction \"%1\""_s.arg(reader.processingInstructionTarget());
    case QXmlStreamReader::DTD:
        return u"the document type"_s;
    case QXmlStreamReader::EntityReference:
        return u"the entity \"%1\""_s.arg(reader.name());
    case QXmlStreamReader::StartDocument:
        return reader.documentVersion().isEmpty() ? QString() : u"the XML declaration"_s;
    default:
        return {};
    }
}

/// Lines and columns of growing offsets in a text.
class PlaceInText
{
public:
    explicit PlaceInText(const QString &whole) : text(whole) {}

    /// The place of the token that begins near `offset`. The reader may have gone a little into it, to see
    /// what comes, so markup is looked for backwards; blanks in front of other text are skipped.
    Position of(qsizetype offset, bool isMarkup)
    {
        qsizetype begin = std::min(offset, text.size());
        if (isMarkup) {
            begin = std::max(text.lastIndexOf(u'<', begin), reached);
        } else {
            while (begin < text.size() && text[begin].isSpace())
                ++begin;
        }
        for (; reached < begin; ++reached)
            at = text[reached] == u'\n' ? Position{at.line + 1, 1} : Position{at.line, at.column + 1};
        return at;
    }

private:
    const QString text;
    qsizetype reached = 0;
    Position at;
};

} // namespace

std::vector<Loss> lossesInText(const QByteArray &content)
{
    return TextScan(content).run();
}

std::vector<Loss> lossesInXml(const QByteArray &content)
{
    std::vector<Loss> losses;
    PlaceInText place(QString::fromUtf8(content));
    QXmlStreamReader reader(content);
    reader.setNamespaceProcessing(false);
    while (!reader.atEnd()) {
        const qint64 begin = reader.characterOffset();
        reader.readNext();
        if (const QString what = xmlLoss(reader); !what.isEmpty())
            losses.push_back({place.of(begin, !reader.isCharacters()), what});
    }
    return losses;
}
