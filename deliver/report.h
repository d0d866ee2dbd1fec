#pragma once

#include "printerstatus.h"

#include <set>
#include <string>
#include <string_view>

/// What the scheduler is told, line by line on standard error: it shows messages and reasons to people.
class Report
{
public:
    /// Knows what an earlier job left behind.
    Report();

    /// What goes on.
    void info(const std::string &sentence) { message("INFO", sentence); }
    /// Why nothing goes on; forgotten when it does.
    void waiting(const std::string &sentence) { message("NOTICE", sentence); }
    /// What stays with the job when it is done.
    void warning(const std::string &sentence) { message("WARNING", sentence); }
    void error(const std::string &sentence) { message("ERROR", sentence); }
    /// That the printer is being reached for; or no longer.
    void connecting(bool isSo) { setReason("connecting-to-device", isSo); }
    void status(const PrinterStatus &status);
    /// Clears what stopped the printer, for it has printed.
    void goesOn();
    /// Reasons that come from elsewhere than the printer's answers.
    void setReason(std::string_view reason, bool isSo);
    /// That the job is on paper: the scheduler counts it, and `palvestrin print` looks there.
    void printed();

private:
    void message(const char *level, const std::string &sentence);
    void line(const std::string &text);

    std::set<std::string, std::less<>> reasons;
    std::string lastMessage;
};
