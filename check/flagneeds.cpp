#include "flagneeds.h"

#include "printmethods.h"
#include "settingnames.h"

#include <algorithm>

namespace check {

namespace {

using vocabulary::CountMember;
using vocabulary::Element;
using vocabulary::FlagMember;

/// The elements that the documents of a kind print.
std::vector<const Element *> elementsOf(const vocabulary::DocumentKind &kind)
{
    std::vector<const Element *> elements;
    const auto add = [&elements](std::span<const Element> row) {
        for (const Element &element : row)
            elements.push_back(&element);
    };
    for (const vocabulary::PrintMethod &method : vocabulary::printMethods) {
        if (method.kind != kind.name)
            continue;
        add(method.document.elements);
        if (method.document.hasSections)
            add(vocabulary::sectionElements);
    }
    return elements;
}

bool consults(const Element &element, CountMember member)
{
    return std::ranges::find(element.counts, member) != element.counts.end();
}

/// The flag without which no element consults the count; null when one does.
FlagMember flagOf(CountMember member, const std::vector<const Element *> &elements)
{
    FlagMember flag = nullptr;
    for (const Element *element : elements) {
        if (!consults(*element, member))
            continue;
        if (!element->flag || (flag && flag != element->flag))
            return nullptr;
        flag = element->flag;
    }
    return flag;
}

void addUnlessThere(std::vector<FlagNeed> &needs, const FlagNeed &need)
{
    if (std::ranges::find(needs, need.setting, &FlagNeed::setting) == needs.end())
        needs.push_back(need);
}

} // namespace

bool FlagNeed::isOn(const QString &value) const
{
    return isFlag ? value == vocabulary::flagOn : value.toInt() != 0;
}

std::vector<FlagNeed> flagNeeds(const vocabulary::DocumentKind &kind)
{
    const std::vector<const Element *> elements = elementsOf(kind);
    std::vector<FlagNeed> needs;
    for (const Element *element : elements) {
        for (const vocabulary::Attribute &attribute : element->attributes) {
            if (element->flag && attribute.flag)
                addUnlessThere(needs, {nameOf(attribute.flag), true, nameOf(element->flag)});
        }
        for (const CountMember member : element->counts) {
            if (const FlagMember flag = flagOf(member, elements))
                addUnlessThere(needs, {nameOf(member), false, nameOf(flag)});
        }
    }
    return needs;
}

} // namespace check
