#pragma once

/// How often a test of random inputs goes round: `whole` times, and a tenth of that under the sanitizers,
/// which take ten times as long for each.
constexpr int rounds(int whole)
{
#ifdef __SANITIZE_ADDRESS__
    return whole / 10;
#else
    return whole;
#endif
}
