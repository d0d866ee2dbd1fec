#pragma once

#include "documents.h"

#include <vector>

/// Everything that a document prints, its header sections first.
inline std::vector<const vocabulary::Element *> elementsOf(const vocabulary::Document &document)
{
    std::vector<const vocabulary::Element *> elements;
    if (document.hasSections) {
        for (const vocabulary::Element &element : vocabulary::sectionElements)
            elements.push_back(&element);
    }
    for (const vocabulary::Element &element : document.elements)
        elements.push_back(&element);
    return elements;
}

/// The element of that name; null when the document prints none.
inline const vocabulary::Element *elementOf(const vocabulary::Document &document, const QString &name)
{
    for (const vocabulary::Element *element : elementsOf(document)) {
        if (name == element->name)
            return element;
    }
    return nullptr;
}

/// The name of the setting that is kept in the member; "" for none.
inline QString nameOfFlag(vocabulary::FlagMember flag)
{
    for (const vocabulary::DocumentSetting &setting : vocabulary::documentSettings) {
        const auto *member = std::get_if<vocabulary::FlagMember>(&setting.member);
        if (member && *member == flag)
            return setting.name;
    }
    return {};
}
