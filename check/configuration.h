#pragma once

#include "finding.h"

class QIODevice;

namespace check {

/// What of this machine the user's own configuration speaks of. `check/` asks for it and looks at no folder
/// itself.
class Surroundings
{
public:
    virtual ~Surroundings() = default;
    /// Whether the labels have the catalogue that the configuration names, or need none.
    virtual bool hasCatalogue() const = 0;
    /// Whether something could be written into that file, which need not be there.
    virtual bool canWriteFile(const QString &path) const = 0;
};

/// Checks a configuration in either form: what its reader makes of it, what no program reads, what counts as
/// something else, and what does not fit the paper. `text` is open for reading; it is read once, from where
/// it stands.
///
/// With `surroundings` it is the user's own file: the programs read that as text, whatever it holds. Without,
/// nothing is said of folders: a file that somebody names may be another machine's.
void checkConfiguration(QIODevice &text, FindingSink &sink, const Surroundings *surroundings = nullptr);

} // namespace check
