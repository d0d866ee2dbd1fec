#pragma once

#include "finding.h"
#include "tokenizer.h"

#include <QString>

#include <vector>

namespace check {

/// A name in a text that the reader drops, or takes for part of something else: what a person means for a
/// setting or a block, and nobody finds.
struct LostName
{
    QString name;
    Place place;
};

/// How a text begins, which tells whether a name may stand at its very front.
enum class TextBegins { WithItem, WithValue };

/// The names in a piece of a configuration that was dropped, in their order.
std::vector<LostName> lostNames(const libconfig::Token &token, TextBegins begins);

Place placeOf(libconfig::Position position);

} // namespace check
