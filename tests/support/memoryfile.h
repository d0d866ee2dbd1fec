#pragma once

#include <QByteArray>
#include <QString>

#include <sys/mman.h>
#include <unistd.h>

/// A file in memory, with a name to open it by. Nothing is left of it when the process ends, however it ends.
class MemoryFile
{
public:
    explicit MemoryFile(const QByteArray &content = {}) : descriptor(memfd_create("test", MFD_CLOEXEC))
    {
        if (descriptor < 0 || write(descriptor, content.constData(), content.size()) != content.size())
            qFatal("a file in memory cannot be made");
    }
    ~MemoryFile() { close(descriptor); }
    MemoryFile(const MemoryFile &) = delete;
    MemoryFile &operator=(const MemoryFile &) = delete;

    QString path() const { return QStringLiteral("/proc/self/fd/%1").arg(descriptor); }

    QByteArray content() const
    {
        QByteArray bytes(lseek(descriptor, 0, SEEK_END), Qt::Uninitialized);
        if (pread(descriptor, bytes.data(), bytes.size(), 0) != bytes.size())
            qFatal("a file in memory cannot be read");
        return bytes;
    }

private:
    const int descriptor;
};
