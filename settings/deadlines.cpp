#include "deadlines.h"

#include "readname.h"

#include <QList>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;
using libconfig::quoted;
using libconfig::Token;
using libconfig::TokenKind;

namespace {

constexpr QByteArrayView blanks(" \t\v\f\r");

/// Follows the blocks to where a key is looked for, and notes what stands there in vain.
class DeadLineFinder : public libconfig::TokenListener
{
public:
    explicit DeadLineFinder(const QString &key) : way(key.toLatin1().split('.')), wanted(way.takeLast()) {}

    void token(const Token &token) override
    {
        switch (token.kind) {
        case TokenKind::BlockName:
            blocks.push_back(readName(token.bytes));
            break;
        case TokenKind::CloseBrace:
            if (!blocks.empty())
                blocks.pop_back();
            break;
        case TokenKind::Key:
            lastKey = quoted(token.bytes);
            if (isOnTheWay())
                checkKey(token);
            break;
        case TokenKind::Value:
            if (isOnTheWay())
                checkValue(token);
            break;
        default:
            break;
        }
    }

    std::vector<DeadLine> found;

private:
    /// Whether a person takes the block being read for the one that holds the key.
    bool isOnTheWay() const
    {
        return std::ranges::equal(blocks, way, [](const ReadName &block, const QByteArray &name) {
            return block.word == name && !block.isDisabled;
        });
    }

    void checkKey(const Token &token)
    {
        const ReadName name = readName(token.bytes);
        if (name.word != wanted || name.isDisabled)
            return;
        std::vector<ReadName> names = blocks;
        names.push_back(name);
        const auto changed =
            std::ranges::find_if(names, [](const ReadName &of) { return !of.front.isEmpty(); });
        if (changed == names.end())
            return;
        const QByteArrayView text = token.bytes.trimmed();
        const qsizetype end = text.data() - token.bytes.data() + text.size();
        found.push_back(
            {token.positionOf(end - wanted.size()),
             u"this line sets nothing: %1 in front of %2 is read as part of that name; "
             "remove that text and this line"_s.arg(quoted(changed->front), quoted(changed->word))});
    }

    void checkValue(const Token &token)
    {
        qsizetype begin = token.bytes.indexOf('\n') + 1;
        while (begin > 0) {
            checkLine(token, begin);
            begin = token.bytes.indexOf('\n', begin) + 1;
        }
    }

    /// A line inside a value, from `begin`.
    void checkLine(const Token &token, qsizetype begin)
    {
        while (begin < token.bytes.size() && blanks.contains(token.bytes[begin]))
            ++begin;
        const QByteArrayView line = token.bytes.sliced(begin);
        if (!line.startsWith(wanted) || !line.sliced(wanted.size()).trimmed().startsWith('='))
            return;
        found.push_back(
            {token.positionOf(begin), u"this line sets nothing: it is read as part of the value of %1; "
                                      "put a \";\" behind that value and remove this line"_s.arg(lastKey)});
    }

    QList<QByteArray> way;
    const QByteArray wanted;
    std::vector<ReadName> blocks; ///< from the first one down to the one being read
    QString lastKey;              ///< for messages
};

} // namespace

std::vector<DeadLine> deadLines(const QByteArray &content, const QString &key)
{
    DeadLineFinder finder(key);
    libconfig::tokenize(content, finder);
    return finder.found;
}
