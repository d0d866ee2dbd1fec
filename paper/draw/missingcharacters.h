#pragma once

#include "strip.h"

#include <QStringList>

/// The characters that no installed font has, each once, in the order in which they come. They are drawn as
/// boxes.
QStringList missingCharacters(const std::vector<Strip> &strips);
