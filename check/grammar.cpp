#include "grammar.h"

#include <QHash>

#include <algorithm>

namespace check {

namespace {

QStringList findAllElementNames()
{
    QStringList names;
    for (const vocabulary::PrintMethod &method : vocabulary::printMethods)
        names += elementNamesOf(method.document);
    names.removeDuplicates();
    return names;
}

QStringList findAttributesReadFrom(const QString &element)
{
    QStringList names;
    for (const vocabulary::PrintMethod &method : vocabulary::printMethods) {
        if (const vocabulary::Element *known = vocabulary::findElement(method.document, element))
            names += attributeNamesOf(*known);
    }
    names.removeDuplicates();
    return names;
}

} // namespace

QStringList methodNames()
{
    QStringList names;
    for (const vocabulary::PrintMethod &method : vocabulary::printMethods)
        names += method.name;
    return names;
}

std::vector<const vocabulary::Element *> elementsOf(const vocabulary::Document &document)
{
    std::vector<const vocabulary::Element *> list;
    if (document.hasSections) {
        for (const vocabulary::Element &element : vocabulary::sectionElements)
            list.push_back(&element);
    }
    for (const vocabulary::Element &element : document.elements)
        list.push_back(&element);
    return list;
}

QStringList elementNamesOf(const vocabulary::Document &document)
{
    QStringList names;
    for (const vocabulary::Element *element : elementsOf(document))
        names += element->name;
    return names;
}

const QStringList &allElementNames()
{
    static const QStringList names = findAllElementNames();
    return names;
}

bool isPositional(const vocabulary::Attribute &attribute)
{
    return attribute.name.isEmpty();
}

QStringList attributeNamesOf(const vocabulary::Element &element)
{
    QStringList names;
    for (const vocabulary::Attribute &attribute : element.attributes) {
        if (!isPositional(attribute))
            names += attribute.name;
    }
    return names;
}

const QStringList &attributesReadFrom(const QString &element)
{
    static QHash<QString, QStringList> known; // of the elements of the vocabulary, so it stays small
    static const QStringList nothing;
    if (!allElementNames().contains(element))
        return nothing;
    if (!known.contains(element))
        known.insert(element, findAttributesReadFrom(element));
    return *known.constFind(element);
}

bool takesAnyAttribute(const QString &element)
{
    return std::ranges::any_of(vocabulary::printMethods, [&](const vocabulary::PrintMethod &method) {
        const vocabulary::Element *known = vocabulary::findElement(method.document, element);
        return known && std::ranges::any_of(known->attributes, isPositional);
    });
}

} // namespace check
