#pragma once

#include <QLatin1StringView>

#include <array>

/// How `palvestrin` ends. The numbers are for scripts and never change; man/palvestrin.1 lists them.
enum class ExitCode {
    Done = 0,
    NotSet = 1,
    WrongUsage = 2,
    Refused = 3,
    Unreadable = 4,
    WouldLose = 5,
    Busy = 6,
    WriteFailed = 7,
    NotInstalled = 8,
    Broken = 9,
    TooLarge = 10,
    Warnings = 11,
    Errors = 12,
    NotConfirmed = 13,
    StillWaiting = 14,
    Unknown = 15,
    PrintFailed = 16,
};

struct ExitCodeMeaning
{
    ExitCode code;
    QLatin1StringView meaning;
};

inline constexpr std::array exitCodeMeanings{
    ExitCodeMeaning{ExitCode::Done, QLatin1StringView("What was asked for is done.")},
    ExitCodeMeaning{ExitCode::NotSet, QLatin1StringView("The key is not set in the file.")},
    ExitCodeMeaning{ExitCode::WrongUsage, QLatin1StringView("The command line is wrong.")},
    ExitCodeMeaning{
        ExitCode::Refused,
        QLatin1StringView("The key is unknown, the value cannot be stored under it, or a job asks for "
                          "what cannot be printed.")},
    ExitCodeMeaning{ExitCode::Unreadable,
                    QLatin1StringView("A file cannot be read, or is not of the kind that is wanted.")},
    ExitCodeMeaning{ExitCode::WouldLose,
                    QLatin1StringView("Writing would lose something of the file; nothing was done.")},
    ExitCodeMeaning{ExitCode::Busy,
                    QLatin1StringView("Another program is writing the file; nothing was done.")},
    ExitCodeMeaning{
        ExitCode::WriteFailed,
        QLatin1StringView("The result cannot be written; the old file stays, unless a printer's output "
                          "was to replace it.")},
    ExitCodeMeaning{
        ExitCode::NotInstalled,
        QLatin1StringView("A part of the house is not installed; the message names its package.")},
    ExitCodeMeaning{ExitCode::Broken,
                    QLatin1StringView("An output has faults; it was shown all the same, as far as it goes.")},
    ExitCodeMeaning{ExitCode::TooLarge,
                    QLatin1StringView("The picture would be too large; nothing was written.")},
    ExitCodeMeaning{ExitCode::Warnings, QLatin1StringView("The check found warnings, and no errors.")},
    ExitCodeMeaning{ExitCode::Errors, QLatin1StringView("The check found errors.")},
    ExitCodeMeaning{ExitCode::NotConfirmed,
                    QLatin1StringView("It was sent to a printer that does not confirm what is on paper.")},
    ExitCodeMeaning{
        ExitCode::StillWaiting,
        QLatin1StringView("It is not over yet: it waits, or is being printed; the print server keeps it.")},
    ExitCodeMeaning{ExitCode::Unknown,
                    QLatin1StringView("Nobody knows whether it is on paper; mostly it is held.")},
    ExitCodeMeaning{ExitCode::PrintFailed,
                    QLatin1StringView("The print server does not take it, or gave it up.")},
};
