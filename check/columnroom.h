#pragma once

#include "documentsettings.h"

#include <QString>

#include <optional>
#include <span>

namespace check {

/// How the columns of a row share the paper, in characters.
struct ColumnRoom
{
    QString title; ///< of the document
    std::span<const vocabulary::CountMember>
        columns; ///< the settings that give widths, the paper's among them
    int paper = 0;
    int taken = 0;   ///< by everything but the description
    int between = 0; ///< of that, by no setting: blanks, "x", a date, what is put in front of a description
    int description = 0;  ///< what is left
    bool isUncut = false; ///< less than nothing is left, and then the renderer cuts no description
};

/// The row with the least room for its description among the documents of a kind, under `settings`; nothing
/// when no row of the kind has such a column. Found by printing rows with the renderer.
std::optional<ColumnRoom> leastColumnRoom(const vocabulary::DocumentKind &kind,
                                          const DocumentSettings &settings);

} // namespace check
