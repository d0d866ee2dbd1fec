#include "treestate.h"

#include "orderedattributes.h"

using libconfig::OrderedAttributes;

namespace {

TreeState stateOfBlock(const QDomElement &block)
{
    TreeState state{block.tagName(), {}, {}};
    for (const QString &name : OrderedAttributes(block).names())
        state.pairs.emplace_back(name, block.attribute(name));
    for (QDomElement child = block.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
        state.blocks += stateOfBlock(child);
    return state;
}

void clear(QDomElement block)
{
    while (block.hasChildNodes())
        block.removeChild(block.firstChild());
    OrderedAttributes attributes(block);
    for (const QString &name : attributes.names())
        attributes.remove(name);
}

void fill(libconfig::Config &config, const QDomElement &block, const TreeState &state)
{
    OrderedAttributes attributes(block);
    for (const auto &[name, value] : state.pairs)
        attributes.set(name, value);
    for (const TreeState &child : state.blocks)
        fill(config, config.appendBlock(block, child.name), child);
}

} // namespace

TreeState stateOf(libconfig::Config &config)
{
    return stateOfBlock(config.root());
}

void restore(libconfig::Config &config, const TreeState &state)
{
    clear(config.root());
    fill(config, config.root(), state);
}
