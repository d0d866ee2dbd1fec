#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

/// A home directory of the test's own, HOME while it lives.
class TemporaryHome
{
public:
    TemporaryHome() : saved(qgetenv("HOME")) { qputenv("HOME", folder.path().toUtf8()); }
    ~TemporaryHome() { qputenv("HOME", saved); }
    TemporaryHome(const TemporaryHome &) = delete;
    TemporaryHome &operator=(const TemporaryHome &) = delete;

    QString path() const { return folder.path(); }
    QString filePath(const QString &name) const { return folder.filePath(name); }
    QString configurationPath() const
    {
        return folder.filePath(QStringLiteral(".palvestrin/conf/palvestrin.conf"));
    }

    /// Writes the configuration file, bytes as they are.
    void configure(const QByteArray &content) const
    {
        QDir(folder.path()).mkpath(QStringLiteral(".palvestrin/conf"));
        QFile file(configurationPath());
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write the test's configuration");
    }

private:
    QTemporaryDir folder;
    QByteArray saved;
};
