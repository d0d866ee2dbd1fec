#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <initializer_list>

/// The commands that the device sends, without their parameters. What the decoder knows of each is told in
/// commandtable.h.
namespace command {

inline constexpr QByteArrayView initialise = "\x1B\x40";
inline constexpr QByteArrayView leaveChinese = "\x1C\x2E";
inline constexpr QByteArrayView codePage = "\x1B\x74";      ///< number
inline constexpr QByteArrayView international = "\x1B\x52"; ///< set
inline constexpr QByteArrayView font = "\x1B\x4D";          ///< 0 A, 1 B
inline constexpr QByteArrayView size = "\x1D\x21";          ///< (width - 1) x 16 + height - 1
inline constexpr QByteArrayView bold = "\x1B\x45";          ///< 0 off, 1 on
inline constexpr QByteArrayView feed = "\x1B\x64";          ///< rows
inline constexpr QByteArrayView cut = "\x1D\x56";           ///< one of the kinds below
inline constexpr QByteArrayView drawer = "\x1B\x70";        ///< pin, on for, off for (2 ms each)
inline constexpr QByteArrayView raster = "\x1D\x76\x30";    ///< 0, bytes of a row (2), rows (2), dots
inline constexpr QByteArrayView storedLogo = "\x1C\x70";    ///< number of the picture, 0
inline constexpr char lineEnd = '\x0A';

inline constexpr int cutFull = 0;
inline constexpr int cutPartial = 1;
inline constexpr int feedAndCutFull = 0x41; ///< followed by more dots to feed
inline constexpr int feedAndCutPartial = 0x42;

/// How many zero bytes free a printer that waits for the rest of a picture, at most one row with its command,
/// when the job before was torn in it. The printer ignores them otherwise. `dots` are those across the paper.
constexpr int restOfPicture(int dots)
{
    return dots / 8 + 7;
}

inline constexpr int maxFeed = 255; ///< rows that one command feeds

/// The command with its parameters, each of which is one byte.
inline QByteArray with(QByteArrayView command, std::initializer_list<int> parameters)
{
    QByteArray bytes = command.toByteArray();
    for (const int parameter : parameters)
        bytes += char(parameter);
    return bytes;
}

} // namespace command
