#include "vocabulary.h"

#include "documents.h"

#include <algorithm>

namespace vocabulary {

const Element *findElement(std::span<const Element> elements, const QString &name)
{
    for (const Element &element : elements) {
        if (name == element.name)
            return &element;
    }
    return nullptr;
}

const Element *findElement(const Document &document, const QString &name)
{
    const Element *section = document.hasSections ? findElement(sectionElements, name) : nullptr;
    return section ? section : findElement(document.elements, name);
}

bool consults(const Element &element, const DocumentSetting &setting)
{
    if (const auto *count = std::get_if<CountMember>(&setting.member))
        return std::ranges::find(element.counts, *count) != element.counts.end();
    const auto *flag = std::get_if<FlagMember>(&setting.member);
    return flag &&
           (element.flag == *flag ||
            std::ranges::any_of(element.attributes, [&](const Attribute &row) { return row.flag == *flag; }));
}

bool consults(const Document &document, const DocumentSetting &setting)
{
    const auto does = [&](const Element &element) { return consults(element, setting); };
    return (document.hasSections && std::ranges::any_of(sectionElements, does)) ||
           std::ranges::any_of(document.elements, does);
}

} // namespace vocabulary
