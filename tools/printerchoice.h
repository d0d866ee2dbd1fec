#pragma once

#include "commandline.h"
#include "profiles.h"

/// How a job is printed: `--device line|escpos`, `--profile PROFILE`, `--config FILE` and `--locale NAME`.

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
inline constexpr Argument localeArgument{.name = QLatin1StringView("NAME")};
inline constexpr Option configurationOption{
    .name = QLatin1StringView("config"),
    .meaning = QLatin1StringView("Print jobs with this configuration instead of the user's."),
    .argument = &fileArgument};
inline constexpr Option localeOption{
    .name = QLatin1StringView("locale"),
    .meaning = QLatin1StringView("The printer's language and encoding, such as it_IT.ISO-8859-15."),
    .argument = &localeArgument};

/// Whether a receipt printer is asked for.
bool isForReceiptPrinter(const CommandLine &line);
/// What the receipt printer can do. Throws a CommandError (WrongUsage) when there is no such profile.
const Profile &chosenProfile(const CommandLine &line);
/// An empty name means the user's. Throws a CommandError (Unreadable) when the renderer cannot read it.
FileName chosenConfiguration(const CommandLine &line);
/// "" means that of the environment. Throws a CommandError (WrongUsage) when it is not installed.
QByteArray chosenLocale(const CommandLine &line);
