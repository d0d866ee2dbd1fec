#pragma once

#include "printerchannel.h"
#include "printerstatus.h"

#include <algorithm>

/// While the proof is waited for, the printer is asked now and then how it is. One question is under way at a
/// time: the answers do not say which question they answer.
class ProofWait
{
public:
    /// `silence` is how long a printer that is ready may take.
    ProofWait(Clock::time_point limit, Clock::duration silence) : until(limit), longest(silence) {}

    bool isOver() const { return Clock::now() >= until; }
    /// When something is to be done, whatever the printer does.
    Clock::time_point next() const { return isAsked ? until : std::min(until, askAt); }
    /// The question that is due, 0 when none is.
    int dueQuestion();
    /// The question could not be asked.
    void postpone();
    /// True when the answer was the last one of a round.
    bool take(unsigned char answer);
    const PrinterStatus &status() const { return known; }
    /// Whether the printer has told how it is, that nothing stops it, and is not silent since.
    bool isHeardReady() const { return isHeard && !isAsked && known.isReady(); }
    /// A printer that waits for a person may take its time.
    void extend() { until = std::max(until, Clock::now() + longest); }

private:
    static constexpr std::chrono::seconds pause{1};

    Clock::time_point until;
    const Clock::duration longest;
    Clock::time_point askAt = Clock::now() + pause;
    PrinterStatus known;
    int question = 1;
    bool isAsked = false;
    bool isHeard = false; ///< a whole round
};
