#include "keyedit.h"

#include "knownkeys.h"
#include "orderedattributes.h"
#include "usercatalogue.h"

#include <QRegularExpression>

#include <algorithm>
#include <iterator>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Room for a value in the reader's buffer beside the blank and the quotes that the writer puts around it.
constexpr qsizetype maxValue = libconfig::maxTextLength - 3;

/// All blocks at the end of `way`, the names of the blocks from the first one down.
void collectBlocks(const QDomElement &block, const QStringList &way, std::vector<QDomElement> &found)
{
    if (block.tagName() != way.first())
        return;
    if (way.size() == 1) {
        found.push_back(block);
        return;
    }
    for (QDomElement child = block.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
        collectBlocks(child, way.mid(1), found);
}

QDomElement makeBlocks(libconfig::Config &config, const QStringList &way)
{
    QDomElement block = config.root();
    for (const QString &name : way) {
        const QDomElement existing = block.firstChildElement(name);
        block = existing.isNull() ? config.appendBlock(block, name) : existing;
    }
    return block;
}

/// A key taken apart, with the blocks of a tree that may hold it.
struct Place
{
    Place(libconfig::Config &config, const QString &key) : way(key.split(u'.')), name(way.takeLast())
    {
        if (!way.isEmpty())
            collectBlocks(config.root().firstChildElement(), way, blocks);
    }

    std::vector<QDomElement> blocksWithKey() const
    {
        std::vector<QDomElement> holding;
        std::ranges::copy_if(blocks, std::back_inserter(holding),
                             [this](const QDomElement &block) { return block.hasAttribute(name); });
        return holding;
    }

    QStringList way;
    QString name;
    std::vector<QDomElement> blocks;
};

void removeIfEmpty(QDomElement block, const QDomElement &root)
{
    while (block != root && !block.hasAttributes() && !block.hasChildNodes()) {
        const QDomNode above = block.parentNode();
        above.toElement().removeChild(block);
        block = above.toElement();
    }
}

void collectPairs(const QDomElement &block, const QString &path, bool isFound, std::vector<StoredPair> &pairs)
{
    for (const QString &name : libconfig::OrderedAttributes(block).names())
        pairs.push_back({path + name, block.attribute(name), isFound});
    for (QDomElement child = block.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
        collectPairs(child, path + child.tagName() + u'.', isFound, pairs);
}

} // namespace

bool setKey(libconfig::Config &config, const QString &key, const QString &value)
{
    const Place place(config, key);
    if (place.way.isEmpty())
        return false;
    const QDomElement first = config.root().firstChildElement();
    if (!first.isNull() && first.tagName() != place.way.first())
        return false;

    std::vector<QDomElement> blocks = place.blocksWithKey();
    if (blocks.empty())
        blocks = {place.blocks.empty() ? makeBlocks(config, place.way) : place.blocks.front()};
    if (!value.isEmpty()) {
        const auto effective = std::ranges::find_if(
            blocks, [&](const QDomElement &block) { return !block.attribute(place.name).isEmpty(); });
        blocks = {effective == blocks.end() ? blocks.front() : *effective};
    }
    for (const QDomElement &block : blocks)
        libconfig::OrderedAttributes(block).set(place.name, value);
    return true;
}

bool removeKey(libconfig::Config &config, const QString &key)
{
    const Place place(config, key);
    const std::vector<QDomElement> blocks = place.blocksWithKey();
    for (const QDomElement &block : blocks) {
        libconfig::OrderedAttributes(block).remove(place.name);
        removeIfEmpty(block, config.root());
    }
    return !blocks.empty();
}

QString keyObjection(const QString &key)
{
    static const QRegularExpression valid(u"\\A[A-Za-z_][A-Za-z0-9_-]*(\\.[A-Za-z_][A-Za-z0-9_-]*)+\\z"_s);
    if (valid.match(key).hasMatch())
        return {};
    return UserWords::tr("\"%1\" is no key; a key is two or more names of letters, digits, '_' "
                         "and '-', with dots between")
        .arg(key);
}

QString valueObjection(const QString &value)
{
    const QChar *const forbidden =
        std::ranges::find_if(value, [](QChar c) { return c == u';' || c == u'"' || c.unicode() > 0xff; });
    if (forbidden != value.end())
        return UserWords::tr("a value cannot hold '%1'; leave it out").arg(*forbidden);
    if (value.size() > maxValue) {
        return UserWords::tr("a value has room for %1 bytes, this one has %2; shorten it")
            .arg(maxValue)
            .arg(value.size());
    }
    return {};
}

std::vector<StoredPair> storedPairs(libconfig::Config &config)
{
    std::vector<StoredPair> pairs;
    const QDomElement root = config.root();
    for (const QString &name : libconfig::OrderedAttributes(root).names())
        pairs.push_back({name, root.attribute(name), false});
    for (QDomElement block = root.firstChildElement(); !block.isNull(); block = block.nextSiblingElement())
        collectPairs(block, block.tagName() + u'.', block == root.firstChildElement(), pairs);
    return pairs;
}

QString inEnglish(const char *text)
{
    return QString::fromUtf8(text);
}

QString pairObjection(const QString &key, bool isFound, QString (*words)(const char *text))
{
    if (!isFound)
        return words(
            QT_TRANSLATE_NOOP("Settings", "never found: only the first top-level block is searched"));
    if (knownkeys::find(key))
        return {};
    const QString meant = knownkeys::closest(key.simplified());
    return meant.isEmpty()
               ? words(QT_TRANSLATE_NOOP("Settings", "no program reads this"))
               : words(QT_TRANSLATE_NOOP("Settings", "no program reads this; did you mean %1?")).arg(meant);
}
