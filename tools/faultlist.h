#pragma once

#include "commanderror.h"
#include "paper.h"

/// What is wrong with the outputs that were read, up to a number that somebody will read.
class FaultList
{
public:
    static constexpr int most = 100;

    void add(const FileName &file, const paper::Fault &fault);
    bool isEmpty() const { return count == 0; }
    /// All of them as one error; `code` is how the command would end without them, Broken goes before Done.
    CommandError asError(ExitCode code) const;

private:
    struct Entry
    {
        FileName file;
        paper::Fault fault;
    };
    std::vector<Entry> entries;
    qint64 count = 0;
};
