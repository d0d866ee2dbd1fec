#include "proofwait.h"

int ProofWait::dueQuestion()
{
    if (isAsked || Clock::now() < askAt)
        return 0;
    isAsked = true;
    return question;
}

void ProofWait::postpone()
{
    isAsked = false;
    askAt = Clock::now() + pause;
}

bool ProofWait::take(unsigned char answer)
{
    if (!isAsked)
        return false;
    isAsked = false;
    known.take(question, answer);
    question = question % PrinterStatus::questions + 1;
    const bool isRoundOver = question == 1;
    askAt = Clock::now() + (isRoundOver ? pause : std::chrono::seconds(0));
    isHeard = isHeard || isRoundOver;
    return isRoundOver;
}
