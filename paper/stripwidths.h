#pragma once

#include "paper.h"

#include <vector>

namespace paper {

/// Finds out how wide the paper of each strip is: a rule ("====") is as long as the paper is wide. Takes the
/// memory of a number for each strip.
class StripWidths : public Painter
{
public:
    /// No paper is narrower, in columns; nor is it wider than the other, whatever a rule says.
    static constexpr int least = 32;
    static constexpr int most = 1000;

    /// `withoutRule` is the width of a strip that has no rule.
    explicit StripWidths(int withoutRule) : usual(withoutRule) {}

    void beginStrip(StripKind kind) override;
    void row(const Row &row) override;
    void event(Event) override {}
    void remark(const QString &) override {}
    void endStrip() override;

    /// Of the strips that have ended.
    const std::vector<int> &widths() const { return found; }

private:
    int usual;
    int rule = 0; ///< the longest of the strip at hand
    std::vector<int> found;
};

} // namespace paper
