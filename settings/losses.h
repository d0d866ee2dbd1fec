#pragma once

#include "commanderror.h"

#include <QByteArray>

#include <vector>

/// What of a configuration file the tree does not hold, so that writing the tree back would lose it.
struct Loss
{
    Position at;
    QString what;
};

/// The losses of a file in the text form, in file order: remarks and other text that belongs to nothing,
/// later top-level blocks, empty blocks, earlier values of a key, quotes inside values, texts over the limit.
///
/// Layout is no loss, nor is a remark that became part of the key behind it: that is written back with it.
std::vector<Loss> lossesInText(const QByteArray &content);

/// The losses of a well-formed file in the XML form: everything that is neither element nor attribute.
std::vector<Loss> lossesInXml(const QByteArray &content);
