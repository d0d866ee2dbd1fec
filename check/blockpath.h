#pragma once

#include "finding.h"
#include "settingsinforce.h"

#include <QString>

#include <vector>

namespace check {

/// Follows the blocks of a configuration, in whichever form, and knows what a program finds in them.
class BlockPath
{
public:
    BlockPath(SettingsInForce &settingsInForce, FindingSink &findings)
        : settings(settingsInForce), sink(findings)
    {
    }

    /// A block begins. `isTold` when it has been told already why nothing is found in it.
    void enter(const QString &name, Place place, bool isTold = false);
    void leave();
    bool isOutside() const { return blocks.empty(); }

    /// A pair of the block at hand. `isTold` when it has been told already what is wrong with it.
    void add(const QString &name, const StoredValue &value, bool isTold = false);

    /// Whether a program looks for a block, or for a setting, of that name here.
    bool knowsBlock(const QString &name) const;
    bool knowsKey(const QString &name) const;
    QString keyOf(const QString &name) const;

private:
    struct Block
    {
        QString name;
        Place place;
        int number;   ///< in the file
        bool isFound; ///< whether anything in it is looked for
        bool hasItems = false;
    };

    bool isFound() const { return blocks.empty() || blocks.back().isFound; }
    void takeItem();
    void tellSecondBlock(const QString &name, Place place);
    void tellUnknownBlock(const QString &name, Place place);
    void tellUnknownKey(const QString &name, Place place);
    QString blockHint(const QString &name) const;
    QString keyHint(const QString &name) const;
    bool mayAdvise() { return adviceLeft > 0 && adviceLeft-- > 0; }

    SettingsInForce &settings;
    FindingSink &sink;
    std::vector<Block> blocks;
    int count = 0;
    bool hasFirst = false; ///< whether a block of the file has had anything in it
    int adviceLeft = 1000; ///< what was meant by a slip takes long to find, and nobody reads more of it
};

} // namespace check
