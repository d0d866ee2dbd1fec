#pragma once

#include <QByteArray>
#include <QString>

/// The locale in which the ordering application starts the renderer: of LC_ALL, LC_CTYPE and LANG the first
/// that is set and not empty. It decides the words on the paper and their bytes alike, because a printer that
/// lacks a language's letters cannot print its words. No other variable has a say, neither LANGUAGE nor
/// LC_MESSAGES.
namespace runlocale {

/// Language and country, as in the name of a catalogue: "it_IT" for "it_IT.ISO-8859-15@euro". "C" for the C
/// and POSIX locales, for a name that means nothing, and when no variable is set.
QString name();

/// The encoding in the C library's words, such as "ISO-8859-15"; "" when the machine has no such locale.
QByteArray codeset();
/// The same of the locale of that name.
QByteArray codesetOf(const QByteArray &localeName);

} // namespace runlocale
