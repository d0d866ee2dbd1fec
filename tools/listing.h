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
    QString objection; ///< why the key has no effect, "" for a known one
};

/// The known keys that begin with `prefix`, then the file's other keys that hold it anywhere.
std::vector<ListedKey> listedKeys(libconfig::Config &config, const QString &prefix);

QString namesOfKnownKeys(const QString &prefix);
QString asText(const std::vector<ListedKey> &keys);
/// An array of objects, indented.
QString asJson(const std::vector<ListedKey> &keys);

/// The tables of the chapter "Keys" in docs/configuration.md.
QString keysAsMarkdown();
