#include "pictureoutput.h"

#include "commanderror.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace {

[[noreturn]] void fail(const QString &name, const QString &reason)
{
    throw CommandError(ExitCode::WriteFailed, name, u"the picture cannot be written: "_s + reason);
}

bool isDevice(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() && !info.isFile() && !info.isDir();
}

void writeToStandardOutput(const QByteArray &picture)
{
    QFile file;
    if (!file.open(stdout, QIODevice::WriteOnly) || file.write(picture) != picture.size() || !file.flush())
        fail(u"standard output"_s, file.errorString());
}

void writeToDevice(const QString &path, const QByteArray &picture)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(picture) != picture.size() || !file.flush())
        fail(path, file.errorString());
}

void writeToFile(const QString &path, const QByteArray &picture)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(picture) != picture.size() || !file.commit())
        fail(path, file.errorString());
}

} // namespace

void writePicture(const QString &path, const QByteArray &picture)
{
    if (path == "-"_L1)
        writeToStandardOutput(picture);
    else if (isDevice(path))
        writeToDevice(path, picture);
    else
        writeToFile(path, picture);
}
