#pragma once

#include <QLatin1StringView>

#include <span>

namespace vocabulary {

using namespace Qt::Literals::StringLiterals;

/// What the reader of a setting makes of its text.
enum class ValueKind {
    Text,    ///< taken as it stands
    Secret,  ///< the same, and nothing to show to whoever looks over the shoulder
    Count,   ///< a whole number; anything else is 0
    Width,   ///< a whole number of characters; 0 and anything else is the printer's own width
    Flag,    ///< on for exactly "true"
    Level,   ///< one of the levels in any case; anything else is the first
    LogType, ///< one of the two in any case; anything else writes no log
};

inline constexpr QLatin1StringView flagOn = "true"_L1;
inline constexpr QLatin1StringView flagWords[] = {flagOn, "false"_L1};

/// In rising order.
inline constexpr QLatin1StringView logLevels[] = {"DEBUG"_L1, "INFO"_L1, "WARNING"_L1, "ERROR"_L1,
                                                  "FATAL"_L1};

inline constexpr QLatin1StringView logAppend = "APPEND"_L1;
inline constexpr QLatin1StringView logOverwrite = "OVERWRITE"_L1;
inline constexpr QLatin1StringView logTypes[] = {logAppend, logOverwrite};

/// The words that a value of this kind is one of; none when it is free.
constexpr std::span<const QLatin1StringView> wordsOf(ValueKind kind)
{
    switch (kind) {
    case ValueKind::Flag:
        return flagWords;
    case ValueKind::Level:
        return logLevels;
    case ValueKind::LogType:
        return logTypes;
    default:
        return {};
    }
}

} // namespace vocabulary
