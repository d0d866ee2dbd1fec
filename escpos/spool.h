#pragma once

#include <QByteArray>
#include <QTemporaryFile>

#include <functional>
#include <memory>

/// Keeps the bytes of one document for its further copies, in a file that goes away by itself: a document may
/// be larger than the memory.
class Spool
{
public:
    void start();
    bool isStarted() const { return file != nullptr; }
    /// Keeps `bytes` when started.
    void add(const QByteArray &bytes);
    /// Hands all that was kept to `take`, piece by piece. Nothing, when not all of it could be kept or read:
    /// half a copy helps nobody.
    void replay(const std::function<void(const QByteArray &)> &take);
    void stop() { file.reset(); }
    bool hasFailed() const { return failed; }

private:
    std::unique_ptr<QTemporaryFile> file;
    bool failed = false;
};
