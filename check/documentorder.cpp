#include "documentorder.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace check {

namespace {

bool hasType(const vocabulary::Element &element, vocabulary::AttributeType type)
{
    return std::ranges::find(element.attributes, type, &vocabulary::Attribute::type) !=
           element.attributes.end();
}

bool isRow(const vocabulary::Element &element)
{
    return hasType(element, vocabulary::Description) || hasType(element, vocabulary::Department);
}

} // namespace

Part partOf(const vocabulary::Document &document, const vocabulary::Element &element)
{
    if (vocabulary::findElement(vocabulary::sectionElements, element.name) ||
        element.name == vocabulary::customerElement.name)
        return Part::Head;
    if (isRow(element))
        return Part::Row;
    const bool sumsUp = hasType(element, vocabulary::Amount) && std::ranges::any_of(document.elements, isRow);
    return sumsUp ? Part::Total : Part::Anywhere;
}

void DocumentOrder::check(const JobElement &element, Part part, FindingSink &sink)
{
    if (element.rows.isEmpty())
        return; // what prints nothing may stand anywhere
    checkPart(element, part, sink);
    checkTitles(element, sink);
    hasRow = hasRow || part == Part::Row || part == Part::Anywhere;
    hasTotal = hasTotal || part == Part::Total;
    printed.insert(&element.vocabulary);
}

void DocumentOrder::checkPart(const JobElement &element, Part part, FindingSink &sink) const
{
    const QLatin1StringView name = element.vocabulary.name;
    if (part == Part::Row && hasTotal)
        sink.take({named("wrong-order"), element.tag.place(), u"\"%1\" stands behind the total"_s.arg(name),
                   u"put the total behind the last row"_s});
    if (part == Part::Head && (hasRow || hasTotal))
        sink.take({named("wrong-order"), element.tag.place(),
                   u"\"%1\" stands behind the rows, and is printed there"_s.arg(name),
                   u"put it in front of the first row"_s});
}

/// Titles that are printed for the first time behind what they are the titles of.
void DocumentOrder::checkTitles(const JobElement &element, FindingSink &sink) const
{
    const vocabulary::Element &titles = element.vocabulary;
    if (titles.titles.isEmpty() || printed.contains(&titles))
        return;
    const auto *rows = vocabulary::findElement(element.method.document.elements, titles.titles);
    if (!printed.contains(rows))
        return;
    sink.take({named("wrong-order"), element.tag.place(),
               u"\"%1\" prints the titles of \"%2\", and stands behind it"_s.arg(titles.name, titles.titles),
               u"put it in front of the first \"%1\""_s.arg(titles.titles)});
}

} // namespace check
