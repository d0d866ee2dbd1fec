#pragma once

#include "valuekind.h"

#include <QLatin1StringView>

/// The settings outside the documents' blocks. Readers ask by these names, and nobody spells a key again.
namespace applicationkey {

using namespace Qt::Literals::StringLiterals;

inline constexpr QLatin1StringView languageBaseDir = "palvestrin.language.basedir"_L1;
inline constexpr QLatin1StringView languageFile = "palvestrin.language.file"_L1;
inline constexpr QLatin1StringView loggerLevel = "palvestrin.logger.level"_L1;
inline constexpr QLatin1StringView loggerBaseDir = "palvestrin.logger.basedir"_L1;
inline constexpr QLatin1StringView loggerFileName = "palvestrin.logger.filename"_L1;
inline constexpr QLatin1StringView loggerType = "palvestrin.logger.type"_L1;
inline constexpr QLatin1StringView dbName = "palvestrin.db.dbname"_L1;
inline constexpr QLatin1StringView dbUserName = "palvestrin.db.username"_L1;
inline constexpr QLatin1StringView dbPassword = "palvestrin.db.password"_L1;
inline constexpr QLatin1StringView dbHostName = "palvestrin.db.hostname"_L1;
inline constexpr QLatin1StringView binPath = "palvestrin.bin.path"_L1;

inline constexpr QLatin1StringView escposLogo = "palvestrin.escpos.logo"_L1;

} // namespace applicationkey

namespace vocabulary {

using namespace Qt::Literals::StringLiterals;

/// A setting outside the documents' blocks. No print method consults any of them.
struct ApplicationKey
{
    QLatin1StringView name;
    ValueKind kind;
    QLatin1StringView meaning;
    QLatin1StringView whenMissing; ///< what its reader makes of a missing value
    QLatin1StringView readBy;
};

inline constexpr ApplicationKey applicationKeys[] = {
    {applicationkey::languageBaseDir, ValueKind::Text, "directory of the translation files"_L1, "\"\""_L1,
     "start-up"_L1},
    {applicationkey::languageFile, ValueKind::Text,
     "translation file, joined to basedir without a separator; \"/\" stands for /palvestrin_ and the "
     "locale's "
     "name"_L1,
     "no translation: English labels"_L1, "start-up"_L1},
    {applicationkey::loggerLevel, ValueKind::Level,
     "least level written: DEBUG, INFO, WARNING, ERROR or FATAL, in any case"_L1, "DEBUG"_L1, "logger"_L1},
    {applicationkey::loggerBaseDir, ValueKind::Text, "directory of the log file"_L1, "the root directory"_L1,
     "logger"_L1},
    {applicationkey::loggerFileName, ValueKind::Text, "name of the log file"_L1,
     "no file can be opened: no log"_L1, "logger"_L1},
    {applicationkey::loggerType, ValueKind::LogType, "APPEND to the log file or OVERWRITE it, in any case"_L1,
     "no log"_L1, "logger"_L1},
    {applicationkey::dbName, ValueKind::Text, "database name"_L1, "\"\""_L1, "database"_L1},
    {applicationkey::dbUserName, ValueKind::Text, "database user"_L1, "\"\""_L1, "database"_L1},
    {applicationkey::dbPassword, ValueKind::Secret, "database password"_L1, "\"\""_L1, "database"_L1},
    {applicationkey::dbHostName, ValueKind::Text, "database host"_L1, "\"\""_L1, "database"_L1},
    {applicationkey::binPath, ValueKind::Text,
     "directory of the application's programs; a \"/\" and the name follow"_L1, "the root directory"_L1,
     "utilities"_L1},
    {applicationkey::escposLogo, ValueKind::Text,
     "picture file (PBM) that a receipt printer prints for the logo"_L1,
     "the picture in the printer's own memory"_L1, "receipt printer"_L1},
};

} // namespace vocabulary
