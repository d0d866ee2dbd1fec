#pragma once

#include <QSet>
#include <QString>

/// Comparisons of namespace prefixes: at every end tag the reader compares all that are in scope with each
/// other. The first ones of an end tag are free, enough for 20 prefixes, so that a long job with few of them
/// goes on.
inline constexpr qint64 maxPrefixComparisons = 200'000'000;
inline constexpr qint64 freePrefixComparisons = 500;

/// The namespace prefixes that are in scope at one place of a job, and what they have cost the reader so far.
class PrefixScope
{
public:
    void add(const QString &prefix);
    void remove(const QString &prefix);
    /// An element ends here; false when the reader has compared too much.
    bool endElement();

private:
    QSet<QString> prefixes;
    qint64 letters = 0; ///< of all prefixes
    qint64 comparisons = 0;
};
