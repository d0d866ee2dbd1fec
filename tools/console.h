#pragma once

#include <QByteArray>
#include <QString>

class CommandError;

/// What a terminal or a pipe sends and gets: text in the encoding of the locale. File names are none of this,
/// they are bytes; nor is what programs read, which is UTF-8 whatever the locale says.

QString fromTerminal(const QByteArray &word);
/// Writes `text` to standard output, as it stands.
void printText(const QString &text);
/// Writes "palvestrin: note: `text`" to standard error; with a `place` in a file, that instead of the
/// program.
void printNote(const QString &text);
void printNote(const QString &place, const QString &text);
/// Writes the messages of an error to standard error, behind all that was printed before.
void printErrors(const CommandError &error);
/// Writes `bytes` to standard output, whatever the locale.
void printBytes(const QByteArray &bytes);
