#pragma once

#include <string_view>

/// What the backend says of a job that ended without a proof. `palvestrin print` looks for it: a job that
/// ended without proof and without one of these ended because the backend was killed.
namespace sentence {

inline constexpr std::string_view unconfirmed =
    "Sent, but not confirmed: this printer does not say what is on paper.";
inline constexpr std::string_view empty = "The job is empty: there was nothing to print.";

} // namespace sentence
