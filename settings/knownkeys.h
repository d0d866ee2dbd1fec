#pragma once

#include "applicationkeys.h"
#include "documentsettings.h"

#include <QString>
#include <QStringList>

#include <vector>

/// The policy for the settings that the programs read: what is known, near, sensible.
///
/// The facts stand with the readers: applicationkeys.h, documentkinds.h, documentsettings.h, and for the
/// print methods printmethods.h.
namespace knownkeys {

/// One known key, whole.
struct Key
{
    QString name;
    vocabulary::ValueKind kind;
    QString meaning;
    QString whenMissing;
    QStringList printMethods; ///< the print methods that consult it, none for an application key
    QString readBy;           ///< the part of the system that reads it
};

/// Every known key, in the order of the tables.
const std::vector<Key> &all();

const Key *find(const QString &name);

/// The known key that `name` is most likely a slip of; "" when none is near.
QString closest(const QString &name);

/// What the readers make of `value`: 32 for a width that is no number, "false" for a flag that is not "true".
QString effectiveValue(const Key &key, const QString &value);

/// Why `value` makes no sense for the key, and what would; "" when it does.
QString objection(const Key &key, const QString &value);

/// What a missing value of a document setting means.
QString whenMissing(vocabulary::ValueKind kind);

/// The names of the print methods that consult a document setting, whatever the kind of document.
QStringList methodsUsing(const vocabulary::DocumentSetting &setting);

} // namespace knownkeys
