#pragma once

#include "capturedoutput.h"
#include "memoryfile.h"

#include <QByteArray>
#include <QCoreApplication>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// The entry of a fuzz target, called with one input after another by libFuzzer or by the replay.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);
/// Called once, before the first input.
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);

/// What a fuzz target says of an input that it has no use for.
inline constexpr int notForTheCorpus = -1;

/// Ends the process, which is how a finding is told, unless the `promise` is kept.
inline void require(bool kept, const char *promise)
{
    if (kept)
        return;
    std::fprintf(stderr, "broken promise: %s\n", promise);
    std::abort();
}
