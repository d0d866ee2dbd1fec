#pragma once

#include <QString>
#include <QStringList>

/// The word of `known` that `word` is most likely a slip of, in whatever case; "" when none is near. A third
/// of the letters wrong is a slip; more is another word.
QString nearestWord(const QString &word, const QStringList &known);
