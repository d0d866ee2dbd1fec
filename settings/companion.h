#pragma once

#include <QByteArrayList>
#include <QString>

/// A program of the house that stands in a package of its own, so that who starts it needs none of its
/// libraries.
struct Companion
{
    QString name;    ///< of the program
    QString package; ///< which package has it
};

/// The path of the program: from the folder of this one, else from the search path. Throws a CommandError
/// (NotInstalled) that names the package.
QString companionPath(const Companion &companion);

/// Goes on as that program; does not return. Throws a CommandError (NotInstalled).
[[noreturn]] void becomeCompanion(const Companion &companion, const QByteArrayList &arguments);
