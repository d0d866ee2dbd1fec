#pragma once

#include "capturedoutput.h"

#include <QByteArray>
#include <QCoreApplication>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <sys/mman.h>
#include <unistd.h>

/// The entry of a fuzz target, called with one input after another by libFuzzer or by the replay.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);
/// Called once, before the first input.
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);

/// What a fuzz target says of an input that it has no use for.
inline constexpr int notForTheCorpus = -1;

/// Ends the process, which is how a finding is told, unless the `promise` is kept.
inline void require(bool kept, const char *promise)
{
    if (kept)
        return;
    std::fprintf(stderr, "broken promise: %s\n", promise);
    std::abort();
}

/// A file in memory, with a name to open it by. Nothing is left of it when the process ends, however it ends.
class MemoryFile
{
public:
    explicit MemoryFile(const QByteArray &content = {}) : descriptor(memfd_create("fuzz", MFD_CLOEXEC))
    {
        require(descriptor >= 0 && write(descriptor, content.constData(), content.size()) == content.size(),
                "a file in memory can be made");
    }
    ~MemoryFile() { close(descriptor); }
    MemoryFile(const MemoryFile &) = delete;
    MemoryFile &operator=(const MemoryFile &) = delete;

    QString path() const { return QStringLiteral("/proc/self/fd/%1").arg(descriptor); }

    QByteArray content() const
    {
        QByteArray bytes(lseek(descriptor, 0, SEEK_END), Qt::Uninitialized);
        require(pread(descriptor, bytes.data(), bytes.size(), 0) == bytes.size(), "it can be read");
        return bytes;
    }

private:
    const int descriptor;
};
