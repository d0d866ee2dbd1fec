#include "orderedattributes.h"

#include <QSet>

namespace libconfig {

namespace {

/// Neither form of file can hold this character: it is no Latin-1 byte and not allowed in XML.
constexpr QChar separator(0xffff);

/// The attributes of `element` that are not in `known`, by name.
QStringList otherNames(const QDomElement &element, const QStringList &known)
{
    const QSet<QString> seen(known.begin(), known.end());
    const QDomNamedNodeMap attributes = element.attributes();
    QStringList names;
    for (int i = 0; i < attributes.count(); ++i) {
        if (!seen.contains(attributes.item(i).nodeName()))
            names += attributes.item(i).nodeName();
    }
    names.sort();
    return names;
}

} // namespace

OrderedAttributes::OrderedAttributes(const QDomElement &of) : element(of), order(of.nodeValue()) {}

OrderedAttributes::~OrderedAttributes()
{
    element.setNodeValue(order);
}

void OrderedAttributes::set(const QString &name, const QString &value)
{
    if (!element.hasAttribute(name))
        order += separator + name;
    element.setAttribute(name, value);
}

void OrderedAttributes::remove(const QString &name)
{
    element.removeAttribute(name);
    setOrder(names());
}

void OrderedAttributes::setOrder(const QStringList &names)
{
    order.clear();
    for (const QString &name : names)
        order += separator + name;
}

QStringList OrderedAttributes::names() const
{
    QStringList names = order.split(separator).mid(1);
    names.removeIf([this](const QString &name) { return !element.hasAttribute(name); });
    if (names.size() < element.attributes().count())
        names += otherNames(element, names);
    return names;
}

} // namespace libconfig
