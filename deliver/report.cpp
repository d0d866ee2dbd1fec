#include "report.h"

#include <algorithm>
#include <cstdlib>
#include <unistd.h>

namespace {

/// What the scheduler shows now, between commas.
std::string shownReasons()
{
    const char *reasons = std::getenv("PRINTER_STATE_REASONS");
    return ',' + std::string(reasons ? reasons : "") + ',';
}

/// A title may hold anything; a line of the report ends where it does, and says nothing else.
std::string withoutControls(std::string text)
{
    std::ranges::replace_if(
        text, [](unsigned char character) { return character < ' ' || character == 0x7F; }, ' ');
    return text;
}

} // namespace

Report::Report()
{
    const std::string shown = shownReasons();
    for (const TroubleKind &kind : troubleKinds) {
        const std::string reason(kind.reason);
        if (shown.find(',' + reason + ',') != std::string::npos)
            reasons.insert(reason);
    }
}

void Report::status(const PrinterStatus &status)
{
    // "Offline" tells nothing where another trouble is the reason for it.
    bool isExplained = false;
    for (const TroubleKind &kind : troubleKinds) {
        const bool isTold = status.has(kind) && !(isExplained && kind.question == 1);
        setReason(kind.reason, isTold);
        isExplained = isExplained || (isTold && kind.stops);
    }
    if (!status.isReady())
        waiting(std::string(status.sentence()));
}

void Report::goesOn()
{
    for (const TroubleKind &kind : troubleKinds) {
        if (kind.stops)
            setReason(kind.reason, false);
    }
}

void Report::setReason(std::string_view reason, bool isSo)
{
    if (isSo == reasons.contains(reason))
        return;
    if (isSo)
        reasons.insert(std::string(reason));
    else
        reasons.erase(reasons.find(reason));
    line((isSo ? "STATE: +" : "STATE: -") + std::string(reason));
}

void Report::printed()
{
    line("PAGE: total 1"); // however often it is told
}

void Report::message(const char *level, const std::string &sentence)
{
    const std::string text = std::string(level) + ": " + sentence;
    if (text != lastMessage)
        line(text);
    lastMessage = text;
}

/// In one piece, so that lines of several processes never mix. Whether anybody reads it changes nothing.
void Report::line(const std::string &text)
{
    const std::string whole = withoutControls(text) + '\n';
    [[maybe_unused]] const ssize_t written = write(STDERR_FILENO, whole.data(), whole.size());
}
