#pragma once

#include "checks.h"

#include <QString>

#include <compare>

namespace check {

/// A place in a text. Lines and columns count from 1, columns in characters: one outside the basic plane
/// counts once.
struct Place
{
    qint64 line = 1;
    qint64 column = 1;

    auto operator<=>(const Place &) const = default; // NOLINT(modernize-use-nullptr): a mistake of the check
};

/// Something that is wrong with a text.
struct Finding
{
    const Check *check; ///< its row of the table, from `named`
    Place place;
    QString message; ///< what is wrong, in words
    QString hint;    ///< what to do about it; "" when the message says it all
};

/// Takes findings while the text is being read, roughly in the order of their places. Nobody keeps them but
/// the sink, so a text may be of any length.
class FindingSink
{
public:
    virtual ~FindingSink() = default;
    virtual void take(const Finding &finding) = 0;
    /// Whether it has a use for findings of that severity: what nobody asked for need not be put into words.
    virtual bool wants(Severity) const { return true; }
};

} // namespace check
