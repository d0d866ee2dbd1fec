#pragma once

#include <QByteArray>
#include <QProcessEnvironment>
#include <QStringList>

/// What one run of the renderer left behind.
struct RendererRun
{
    /// Empty when the program ended by itself with status 0, else one line that tells what it did instead.
    QString failure;
    QByteArray standardOutput;
    QByteArray standardError;
};

/// Path of the program under test, as it is typed to start it.
QString rendererPath();

/// A bare environment: `home` as home directory, a UTF-8 locale, nothing else.
QProcessEnvironment bareEnvironment(const QString &home);

/// Starts the renderer with these words and waits until it ends, at most a minute; after that it is stopped.
RendererRun runRenderer(const QStringList &arguments, const QProcessEnvironment &environment);
