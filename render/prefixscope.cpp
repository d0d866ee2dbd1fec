#include "prefixscope.h"

void PrefixScope::add(const QString &prefix)
{
    if (prefixes.contains(prefix)) // many a serializer declares the same prefix anew at every element
        return;
    prefixes.insert(prefix);
    letters += prefix.size();
}

void PrefixScope::remove(const QString &prefix)
{
    if (prefixes.remove(prefix))
        letters -= prefix.size();
}

bool PrefixScope::endElement()
{
    // A comparison of short prefixes takes as long as that of 32 letters.
    constexpr int lettersInAComparison = 32;
    const qint64 made = prefixes.size() * (prefixes.size() + letters / lettersInAComparison);
    comparisons += qMax<qint64>(0, made - freePrefixComparisons);
    return comparisons <= maxPrefixComparisons;
}
