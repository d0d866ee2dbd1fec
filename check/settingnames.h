#pragma once

#include "documentsettings.h"

#include <algorithm>
#include <iterator>

namespace check {

/// The name of the setting that is kept in `member`.
template <typename Member>
QLatin1StringView nameOf(Member member)
{
    const auto *found = std::ranges::find_if(vocabulary::documentSettings, [member](const auto &setting) {
        const auto *kept = std::get_if<Member>(&setting.member);
        return kept && *kept == member;
    });
    return found == std::end(vocabulary::documentSettings) ? QLatin1StringView() : found->name;
}

} // namespace check
