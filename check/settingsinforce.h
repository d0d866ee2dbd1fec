#pragma once

#include "documentsettings.h"
#include "finding.h"
#include "knownkeys.h"

#include <QHash>
#include <QString>

namespace check {

/// A value as it stands in a configuration.
struct StoredValue
{
    QString text;
    Place keyPlace;
    Place valuePlace;
    int block = 0; ///< which block of the file it stands in, counted in blocks
};

/// The values of the known keys that count, as a look-up finds them.
class SettingsInForce
{
public:
    /// The next value of `key` in the file. Tells when one of two does not count, and, unless something has
    /// been told of it already, what is wrong with it alone.
    void add(const knownkeys::Key &key, const StoredValue &value, bool isTold, FindingSink &sink);

    /// The value that counts; null when the file has none.
    const StoredValue *find(const QString &key) const;
    /// Its text, "" when there is none.
    QString textOf(const QString &key) const;
    /// The settings of a kind of document, as printing reads them.
    DocumentSettings of(const vocabulary::DocumentKind &kind) const;

private:
    QHash<QString, StoredValue> values;
};

} // namespace check
