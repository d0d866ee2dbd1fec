#include "losses.h"

#include "tokenizer.h"
#include "usercatalogue.h"

#include <QHash>
#include <QXmlStreamReader>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;
using libconfig::quoted;
using libconfig::Token;
using libconfig::TokenKind;

namespace {

/// The writer puts a blank and two quotes around a value, and the reader counts them.
constexpr qsizetype maxWrittenValue = libconfig::maxTextLength - 3;

/// Writes down what the reader drops of a file, and what the writer would.
class LossFinder : public libconfig::TokenListener
{
public:
    void token(const Token &token) override
    {
        switch (token.kind) {
        case TokenKind::BlockName:
            takeName(token);
            isBraceMissing = true;
            break;
        case TokenKind::BeforeBrace:
            lose(token, UserWords::tr("%1 between a block's name and its brace"));
            break;
        case TokenKind::OpenBrace:
            openBlock();
            break;
        case TokenKind::Key:
            takeKey(token);
            break;
        case TokenKind::Value:
            takeValue(token);
            break;
        case TokenKind::Stray:
            lose(token, UserWords::tr("%1, which belongs to no setting"));
            break;
        case TokenKind::CloseBrace:
            isClosing = true;
            brace = token.at;
            break;
        case TokenKind::BehindBrace:
            lose(token, UserWords::tr("%1 between a closing brace and the next \";\" (is one missing?)"));
            break;
        case TokenKind::Semicolon:
            endItem();
            break;
        case TokenKind::Unread:
            endReading();
            break;
        case TokenKind::Colon:
        case TokenKind::Equals:
            break;
        }
    }

    /// All losses, when the file has ended.
    std::vector<Loss> inFileOrder()
    {
        if (isBraceMissing)
            lose(name.at, UserWords::tr("block %1 without a brace").arg(name.quoted));
        while (blocks.size() > 1)
            leaveBlock();
        std::ranges::stable_sort(losses, {},
                                 [](const Loss &loss) { return std::pair(loss.at.line, loss.at.column); });
        return losses;
    }

private:
    /// A name or a key, for messages.
    struct Name
    {
        Position at;
        QString quoted;
    };

    struct Block
    {
        Name name;
        bool isLost = false; ///< with everything in it
        bool hasItems = false;
        bool hasChild = false; ///< a block that the tree holds
        QHash<QString, Position> pairs;
    };

    void lose(Position at, const QString &what)
    {
        if (!blocks.back().isLost)
            losses.push_back({at, what});
    }
    void lose(const Token &token, const QString &what)
    {
        if (!token.isBlank())
            lose(token.textAt(), what.arg(quoted(token.bytes)));
    }

    void takeName(const Token &token)
    {
        name = {token.textAt(), quoted(token.bytes)};
        blocks.back().hasItems = true;
        if (token.isCut()) {
            lose(name.at,
                 UserWords::tr("the end of %1: a name has room for %2 bytes, blanks in front included")
                     .arg(name.quoted, QString::number(libconfig::maxTextLength)));
        }
    }

    void openBlock()
    {
        isBraceMissing = false;
        const int depth = int(blocks.size()) - 1;
        if (depth == libconfig::maxDepth) {
            lose(name.at, UserWords::tr("blocks nested deeper than %1, and everything behind").arg(depth));
            return;
        }
        const bool isLater = depth == 0 && blocks.back().hasChild;
        if (isLater)
            lose(name.at, UserWords::tr("block %1: only the first top-level block is read and written")
                              .arg(name.quoted));
        const bool isLost = isLater || blocks.back().isLost;
        blocks.emplace_back().isLost = isLost;
        blocks.back().name = name;
    }

    void leaveBlock()
    {
        const Block left = std::move(blocks.back());
        blocks.pop_back();
        if (!left.hasItems)
            lose(left.name.at, UserWords::tr("empty block %1").arg(left.name.quoted));
        blocks.back().hasChild |= left.hasItems;
    }

    void takeKey(const Token &token)
    {
        takeName(token);
        QHash<QString, Position> &pairs = blocks.back().pairs;
        if (const auto earlier = pairs.constFind(token.name()); earlier != pairs.cend()) {
            lose(*earlier, UserWords::tr("this value of %1: line %2 gives another")
                               .arg(name.quoted, QString::number(name.at.line)));
        }
        pairs[token.name()] = name.at;
    }

    void takeValue(const Token &token)
    {
        const QByteArrayView stripped = token.bytes.trimmed();
        const bool isQuoted = stripped.size() >= 2 && stripped.startsWith('"') && stripped.endsWith('"');
        const QByteArrayView inside = isQuoted ? stripped.sliced(1, stripped.size() - 2) : stripped;
        if (inside.contains('"')) {
            lose(token.textAt(),
                 UserWords::tr("the quotes inside the value of %1 (is a \";\" missing?)").arg(name.quoted));
        }
        if (token.isCut() || inside.size() > maxWrittenValue) {
            lose(token.textAt(), UserWords::tr("the end of the value of %1: a value has room for %2 bytes")
                                     .arg(name.quoted, QString::number(maxWrittenValue)));
        }
    }

    /// Behind a pair, or behind the brace that closes a block.
    void endItem()
    {
        if (isClosing && blocks.size() > 1)
            leaveBlock();
        isClosing = false;
    }

    void endReading()
    {
        if (blocks.size() == 1)
            lose(brace, UserWords::tr("everything behind this brace, which closes no block"));
    }

    std::vector<Block> blocks{Block()}; ///< from the file down to the block being read
    Name name;                          ///< the last one
    bool isBraceMissing = false;        ///< behind the last name, which is a block's
    bool isClosing = false;
    Position brace; ///< the last closing one
    std::vector<Loss> losses;
};

QString xmlLoss(const QXmlStreamReader &reader)
{
    switch (reader.tokenType()) {
    case QXmlStreamReader::Comment:
        return UserWords::tr("the remark \"%1\"").arg(reader.text().toString().simplified());
    case QXmlStreamReader::Characters:
        return reader.isWhitespace()
                   ? QString()
                   : UserWords::tr("the text \"%1\"").arg(reader.text().toString().simplified());
    case QXmlStreamReader::ProcessingInstruction:
        return UserWords::tr("the processing instruction \"%1\"").arg(reader.processingInstructionTarget());
    case QXmlStreamReader::DTD:
        return UserWords::tr("the document type");
    case QXmlStreamReader::EntityReference:
        return UserWords::tr("the entity \"%1\"").arg(reader.name());
    case QXmlStreamReader::StartDocument:
        return reader.documentVersion().isEmpty() ? QString() : UserWords::tr("the XML declaration");
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
    LossFinder finder;
    libconfig::tokenize(content, finder);
    return finder.inFileOrder();
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
