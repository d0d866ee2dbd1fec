#pragma once

#include "commandline.h"
#include "profiles.h"

/// Which printer a job is printed for: `--device line|escpos` and `--profile PROFILE`.

QList<Offer> offerProfiles(const CommandLine &before, const QString &begun);

inline constexpr Argument deviceArgument{.name = QLatin1StringView("line|escpos")};
inline constexpr Argument profileArgument{.name = QLatin1StringView("PROFILE"), .offers = offerProfiles};
inline constexpr Option deviceOption{
    .name = QLatin1StringView("device"),
    .meaning = QLatin1StringView("For the line printer, which is usual, or for a receipt printer."),
    .argument = &deviceArgument};
inline constexpr Option profileOption{
    .name = QLatin1StringView("profile"),
    .meaning = QLatin1StringView("What the receipt printer can do; 80mm is usual."),
    .argument = &profileArgument};

/// Whether a receipt printer is asked for.
bool isForReceiptPrinter(const CommandLine &line);
/// What the receipt printer can do. Throws a CommandError (WrongUsage) when there is no such profile.
const Profile &chosenProfile(const CommandLine &line);
