#pragma once

#include "filename.h"

#include <QByteArray>

/// Puts a new file in the place of an old one: whoever looks, or pulls the plug, finds the old file or the
/// new one, whole.
///
/// The new content goes to a file beside the old one, named ".<name>.new", is brought to the disk and
/// renamed. That file is the lock too: of two programs that replace the same file at once, the second waits
/// for the first, and is told so when that takes too long. The lock is the operating system's, so nothing a
/// killed program leaves behind keeps anybody out: the next one takes its half-written ".new" file over.
///
/// Owner and permissions of the old file are kept; a file without a predecessor is the owner's alone, for it
/// may hold a password. A symbolic link stays one: the file that it leads to is replaced.
class FileReplacement
{
public:
    /// Takes the lock on `path`. Throws a CommandError: Busy when another program holds it and does not give
    /// it away within two seconds, WriteFailed when the file or its folder cannot be written, or what is
    /// there is no regular file. Folders that are missing are made.
    explicit FileReplacement(const FileName &path);
    /// The same; the new file takes owner and permissions of `model`, which exists.
    FileReplacement(const FileName &path, const FileName &model);
    FileReplacement(const FileReplacement &) = delete;
    FileReplacement &operator=(const FileReplacement &) = delete;
    /// Without a commit everything is as before.
    ~FileReplacement();

    /// Puts `content` in place. Called once. Throws a CommandError (WriteFailed) and leaves the old file.
    void commit(const QByteArray &content);

private:
    void lock();
    /// False when another program holds the lock, or held it until now.
    bool tryLock();
    void takeOver(const FileName &model);
    void writeAll(const QByteArray &content);
    [[noreturn]] void fail(const QString &what) const;

    FileName path;
    FileName newPath;
    int file = -1;
    bool committed = false;
};

/// Where a link leads, for any number of links; `path` itself when it is none. Throws a CommandError
/// (Unreadable) when it leads nowhere.
FileName behindLinks(const FileName &path);
