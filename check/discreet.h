#pragma once

#include <QString>

namespace check {

/// `value`, which a configuration holds under `key`, in quotes for a message; "(hidden)" when it may be a
/// password.
QString discreet(const QString &key, const QString &value);

/// The same for text that belongs to no key: a name that swallowed something, a line that is dropped. No more
/// of it than stands in front of a value.
QString discreet(const QByteArray &text);

} // namespace check
