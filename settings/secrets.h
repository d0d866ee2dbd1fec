#pragma once

#include <QString>

/// What stands in the place of a secret that nobody asked for.
inline constexpr QLatin1StringView hiddenValue("(hidden)");

/// Whether `value`, which a file holds under `key` (or the last name of one), may be a password. Mistakes
/// count: a key that is misspelled or swallowed a remark, and a value that swallowed the next pair for want
/// of a ";".
bool mayBeSecret(const QString &key, const QString &value);
