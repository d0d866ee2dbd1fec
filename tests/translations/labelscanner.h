#pragma once

#include <QSet>
#include <QString>

/// The labels that C++ source text marks for translation: the string literals in `tr(...)`, `QT_TR_NOOP(...)`
/// `QT_TRANSLATE_NOOP("QObject", ...)` and, in a context of any name, `translate("HLibrary", ...)`.
QSet<QString> labelsInSource(const QString &text);

/// The labels of all .cpp and .h files directly in `folder`.
QSet<QString> labelsInFolder(const QString &folder);
