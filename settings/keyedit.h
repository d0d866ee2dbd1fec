#pragma once

#include "libconfig.h"

#include <QString>
#include <QStringList>

#include <vector>

/// Changing a tree by dotted keys, so that `Config::lookup` finds what was set.

/// Gives `key` the value `value`. Blocks on the way that are missing are made. Where several blocks of one
/// name give the key, the one that is found changes; an empty value goes to all of them. False when the key
/// names no block, or the tree's first block is another: what is set behind it would never be found.
bool setKey(libconfig::Config &config, const QString &key, const QString &value);

/// Removes `key` wherever a look-up might find it, and the blocks that this leaves empty. False when it is
/// nowhere.
bool removeKey(libconfig::Config &config, const QString &key);

/// Why `key` cannot be a key, "" when it can: components of letters, digits, '_' and '-', at least two.
QString keyObjection(const QString &key);

/// Why no file could hold `value`, "" when one can.
QString valueObjection(const QString &value);

/// A pair as it stands in a file.
struct StoredPair
{
    QString key; ///< dotted path under the root
    QString value;
    bool isFound; ///< whether a look-up reaches it: it stands in the first top-level block
};

/// All pairs of the tree, in file order.
std::vector<StoredPair> storedPairs(libconfig::Config &config);

/// A text as it stands in the code.
QString inEnglish(const char *text);

/// What is wrong with a stored pair, and what was probably meant; "" for a known key that is found. In the
/// language of `words`.
QString pairObjection(const QString &key, bool isFound, QString (*words)(const char *text) = inEnglish);
