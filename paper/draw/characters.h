#pragma once

#include <QString>
#include <QStringList>

/// What stands in a picture for a character of a cell: itself, but for the few that the painter of pictures
/// acts upon instead of drawing them.
char32_t shown(char32_t character);

/// The characters of a text from left to right, each with the marks that stand over it.
QStringList charactersOf(const QString &text);

/// Columns that a text takes on paper.
int columnsOf(const QString &text);
