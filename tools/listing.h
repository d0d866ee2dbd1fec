#pragma once

#include "libconfig.h"

#include <QString>
#include <QStringList>

#include <vector>

/// What `palvestrin config list` prints.

/// One key, known or found in the file.
struct ListedKey
{
    QString key;
    QString value;     ///< as it stands in the file, "" when missing
    QString effective; ///< what the programs make of it
    QString meaning;
    QString whenMissing;
    QString readBy;
    QStringList printMethods;
    QString objection;     ///< why the key has no effect, in English; "" for a known one
    QString objectionTold; ///< the same in the user's language
    bool isHidden = false; ///< whether the value is kept back
};

/// The known keys that `name` names, then the file's other keys that hold it anywhere. A name is a key, the
/// beginning of one, a block or a setting, in any case; where it is none of these, the beginning of a block
/// or a setting.
std::vector<ListedKey> listedKeys(libconfig::Config &config, const QString &name);

/// Keeps the values back that may be secret.
void hideSecrets(std::vector<ListedKey> &keys);

QString namesOfKnownKeys(const QString &name);
QString asText(const std::vector<ListedKey> &keys);
/// An array of objects, indented, in UTF-8.
QByteArray asJson(const std::vector<ListedKey> &keys);
