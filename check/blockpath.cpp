#include "blockpath.h"

#include "discreet.h"
#include "usercatalogue.h"
#include "words.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace check {

namespace {

constexpr auto outermost = "palvestrin"_L1;
QString listAdvice()
{
    return UserWords::tr("\"palvestrin config list\" lists the settings that programs read");
}

QStringList namesOfBlocks()
{
    QStringList names{outermost};
    for (const knownkeys::Key &key : knownkeys::all())
        names += key.name.section(u'.', 0, -2);
    names.removeDuplicates();
    return names;
}

/// The paths of all blocks that programs look into: "palvestrin", "palvestrin.db", ...
const QStringList &knownBlocks()
{
    static const QStringList names = namesOfBlocks();
    return names;
}

/// The first block that has a setting of that name; "" when none has.
QString blockWith(const QString &name)
{
    const auto key = std::ranges::find(knownkeys::all(), name,
                                       [](const knownkeys::Key &of) { return of.name.section(u'.', -1); });
    return key == knownkeys::all().end() ? QString() : key->name.section(u'.', -2, -2);
}

} // namespace

QString BlockPath::keyOf(const QString &name) const
{
    QString key;
    for (const Block &block : blocks)
        key += block.name + u'.';
    return key + name;
}

/// A dot in a name is no way into a block.
bool BlockPath::knowsBlock(const QString &name) const
{
    return isFound() && !name.contains(u'.') && knownBlocks().contains(keyOf(name));
}

bool BlockPath::knowsKey(const QString &name) const
{
    return !blocks.empty() && isFound() && !name.contains(u'.') && knownkeys::find(keyOf(name));
}

/// The block at hand and those around it are not empty.
void BlockPath::takeItem()
{
    for (Block &block : blocks)
        block.hasItems = true;
    hasFirst = hasFirst || !blocks.empty();
}

void BlockPath::enter(const QString &name, Place place, bool isTold)
{
    const bool isLater = blocks.empty() && hasFirst;
    const bool isKnown = knowsBlock(name);
    if (isLater)
        tellSecondBlock(name, place);
    else if (!isKnown && !isTold && isFound())
        tellUnknownBlock(name, place);
    takeItem();
    blocks.push_back({name, place, count++, isFound() && isKnown && !isLater});
}

void BlockPath::tellSecondBlock(const QString &name, Place place)
{
    sink.take({named("second-block"), place,
               UserWords::tr("the block %1 is never looked into: only the first one of a file is")
                   .arg(discreet(name.toLatin1())),
               name == outermost ? UserWords::tr("move it to the front, and what is there into it")
                                 : UserWords::tr("move its settings into the first block")});
}

void BlockPath::tellUnknownBlock(const QString &name, Place place)
{
    sink.take({named("unknown-block"), place,
               UserWords::tr("no program looks into the block %1").arg(discreet(keyOf(name).toLatin1())),
               mayAdvise() ? blockHint(name) : listAdvice()});
}

QString BlockPath::blockHint(const QString &name) const
{
    const QString parent = keyOf(QString()).chopped(blocks.empty() ? 0 : 1);
    QStringList here;
    for (const QString &path : knownBlocks()) {
        if (path == outermost + u'.' + name)
            return UserWords::tr("it belongs into the block \"%1\"").arg(outermost);
        if (path.section(u'.', 0, -2) == parent)
            here += path.section(u'.', -1);
    }
    return didYouMean(name, here, listAdvice());
}

void BlockPath::leave()
{
    if (blocks.empty())
        return;
    const Block &block = blocks.back();
    if (!block.hasItems && block.isFound) {
        sink.take({named("no-effect"),
                   block.place,
                   UserWords::tr("the block %1 is empty, which is the same as none").arg(quoted(block.name)),
                   {}});
    }
    blocks.pop_back();
}

void BlockPath::add(const QString &name, const StoredValue &value, bool isTold)
{
    takeItem();
    if (!isFound())
        return;
    if (knowsKey(name)) {
        StoredValue stored = value;
        stored.block = blocks.back().number;
        settings.add(*knownkeys::find(keyOf(name)), stored, isTold, sink);
    } else if (!isTold) {
        tellUnknownKey(name, value.keyPlace);
    }
}

void BlockPath::tellUnknownKey(const QString &name, Place place)
{
    if (blocks.empty()) {
        sink.take({named("unknown-key"), place,
                   UserWords::tr("%1 stands outside the blocks, where no program looks")
                       .arg(discreet(name.toLatin1())),
                   UserWords::tr("move it into a block of the block \"%1\"").arg(outermost)});
        return;
    }
    sink.take({named("unknown-key"), place,
               UserWords::tr("no program reads %1").arg(discreet(keyOf(name).toLatin1())),
               mayAdvise() ? keyHint(name) : listAdvice()});
}

QString BlockPath::keyHint(const QString &name) const
{
    const QString key = keyOf(name);
    for (const QString &dotted : {name, key}) {
        if (name.contains(u'.') && knownkeys::find(dotted)) {
            return UserWords::tr("a name has no dots: put %1 into the block %2")
                .arg(quoted(dotted.section(u'.', -1)), quoted(dotted.section(u'.', -2, -2)));
        }
    }
    if (const QString block = blockWith(name); blocks.size() == 1 && !block.isEmpty())
        return UserWords::tr("it belongs into a block, such as %1").arg(quoted(block));
    const QString meant = knownkeys::closest(key);
    return meant.isEmpty() ? listAdvice() : UserWords::tr("did you mean %1?").arg(quoted(meant));
}

} // namespace check
