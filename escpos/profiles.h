#pragma once

#include <QLatin1StringView>
#include <QStringView>

#include <span>

/// What one kind of printer can do. A row of the table below is all that it takes to add a printer; how to
/// find out what stands in it is told in docs/escpos.md.
struct Profile
{
    enum class Cutter { None, Full, Partial };
    enum class Drawer { None, Pin2, Pin5 };

    QLatin1StringView name; ///< as people give it on the command line
    QLatin1StringView title;
    int columns = 0;                     ///< characters on a row in font A, the usual one
    int narrowColumns = 0;               ///< in font B, the narrow one; 0 where it is better not used
    int dots = 0;                        ///< across the paper; a character of font A takes 12
    std::span<const int> codePages = {}; ///< numbers; a row is printed in the first that has all its letters
    Cutter cutter = Cutter::None;
    int rowsToTearBar = 0; ///< fed before a document is cut or torn off; 0: the cut feeds by itself
    Drawer drawer = Drawer::None;
    bool pictures = false;   ///< takes raster pictures
    bool storedLogo = false; ///< can print a picture from its own memory
    bool status = false;     ///< answers when it is asked for its state
};

/// All that printers for Europe have. First what its West writes, the euro sign included.
inline constexpr int usualCodePages[] = {19, 16, 18, 2, 0, 17, 46, 45, 13, 40, 39, 3, 4, 5};
/// What clones have too, the page in which they all start first: a page that a printer lacks prints other
/// letters than were meant, and that is worse than a question mark.
inline constexpr int commonCodePages[] = {0, 2, 19};

inline constexpr Profile profiles[] = {
    {.name = QLatin1StringView("80mm"),
     .title = QLatin1StringView("80 mm paper, 48 columns"),
     .columns = 48,
     .narrowColumns = 64,
     .dots = 576,
     .codePages = usualCodePages,
     .cutter = Profile::Cutter::Partial,
     .drawer = Profile::Drawer::Pin2,
     .pictures = true,
     .storedLogo = true,
     .status = true},
    {.name = QLatin1StringView("80mm-42"),
     .title = QLatin1StringView("80 mm paper, 42 columns"),
     .columns = 42,
     .narrowColumns = 56,
     .dots = 512,
     .codePages = usualCodePages,
     .cutter = Profile::Cutter::Partial,
     .drawer = Profile::Drawer::Pin2,
     .pictures = true,
     .storedLogo = true,
     .status = true},
    {.name = QLatin1StringView("58mm"),
     .title = QLatin1StringView("58 mm paper, 32 columns"),
     .columns = 32,
     .narrowColumns = 42,
     .dots = 384,
     .codePages = usualCodePages,
     .cutter = Profile::Cutter::Partial,
     .rowsToTearBar = 4, // few of them have a cutter; those without ignore the cut and have been fed
     .drawer = Profile::Drawer::Pin2,
     .pictures = true},
    {.name = QLatin1StringView("generic"),
     .title = QLatin1StringView("an unknown printer, 32 columns, only what all of them know"),
     .columns = 32,
     .dots = 384,
     .codePages = commonCodePages,
     .rowsToTearBar = 5,
     .drawer = Profile::Drawer::Pin2},
};

/// The profile that is taken when none is named.
inline constexpr const Profile &usualProfile = profiles[0];

/// Null when there is none of that name.
inline constexpr const Profile *findProfile(QStringView name)
{
    for (const Profile &profile : profiles) {
        if (name == profile.name)
            return &profile;
    }
    return nullptr;
}
