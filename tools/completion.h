#pragma once

#include "command.h"

#include <QByteArrayList>

/// What the Tab key offers in the place of the last of `words`, which follow the program's name: for the
/// shells, one offer a line, its meaning behind a tab. The line ":files" stands for the names of files.
QString offersFor(const Command &root, const QByteArrayList &words);

// What arguments offer, see command.h.

/// The next part of the keys that begin so; "palvestrin." may be left out.
QList<Offer> offerKeys(const CommandLine &before, const QString &begun);
/// The same, or the names of settings that begin so.
QList<Offer> offerNames(const CommandLine &before, const QString &begun);
/// The values of the key that stands in front, where they are few.
QList<Offer> offerValues(const CommandLine &before, const QString &begun);
