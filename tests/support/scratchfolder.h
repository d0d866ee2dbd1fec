#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

/// A folder of the test's own, gone with it. Files are named relative to it and hold bytes as they are.
class ScratchFolder
{
public:
    QString path() const { return folder.path(); }
    QString path(const QString &name) const { return folder.filePath(name); }

    /// Writes the file and returns its path.
    QString write(const QString &name, const QByteArray &content) const
    {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write %s", qPrintable(path(name)));
        return path(name);
    }
    QByteArray read(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot read the file");
    }
    /// All names in the folder, hidden ones too.
    QStringList names() const
    {
        return QDir(path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

private:
    QTemporaryDir folder;
};
