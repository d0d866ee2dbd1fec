#pragma once

#include "blockpath.h"
#include "tokenizer.h"

namespace check {

/// The name of a block or a pair: as the reader takes it, and where a person sees it.
struct ReadItem
{
    QString name;          ///< with everything that became part of it
    Place place;           ///< of its last word
    bool isTold = false;   ///< whether a finding told why nobody finds it
    bool isRemark = false; ///< it is meant to set nothing
};

/// Takes the name of a block (BlockName) or a pair (Key) and tells what spoils it.
ReadItem readItem(const libconfig::Token &token, const BlockPath &path, FindingSink &sink);

/// Whether the reader cuts more than white space off a name or a value.
bool losesItsEnd(const libconfig::Token &token);

} // namespace check
