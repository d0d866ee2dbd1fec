#pragma once

#include "libconfig.h"

#include <QList>
#include <QString>

#include <utility>

/// All that a tree holds, as a value: kept, compared and put back, as undo wants it. Copies share their data.
struct TreeState
{
    QString name;                             ///< of the block; that of the file for the root
    QList<std::pair<QString, QString>> pairs; ///< in file order
    QList<TreeState> blocks;                  ///< the same

    bool operator==(const TreeState &) const = default;
};

TreeState stateOf(libconfig::Config &config);

/// Makes the tree what it was. What is no block and no pair is gone afterwards, as it is from a file that the
/// writers write.
void restore(libconfig::Config &config, const TreeState &state);
