#pragma once

#include "documentkinds.h"

#include <QString>

#include <vector>

namespace check {

/// A setting that does nothing while another one is off.
struct FlagNeed
{
    QLatin1StringView setting;
    bool isFlag; ///< or a count
    QLatin1StringView needs;

    /// Whether a value of the setting asks for anything.
    bool isOn(const QString &value) const;
};

/// Those of one kind of document, as its elements' rows tell.
std::vector<FlagNeed> flagNeeds(const vocabulary::DocumentKind &kind);

} // namespace check
