#include "filereplacement.h"

#include "commanderror.h"
#include "usercatalogue.h"

#include <QDeadlineTimer>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr mode_t ownerOnly = 0600;

/// How long a second writer waits for the first, and how often it looks: saving takes a fraction of a second.
constexpr std::chrono::seconds patience(2);
constexpr std::chrono::milliseconds interval(10);

/// Whether `path` leads to the open `file`.
bool isNamed(int file, const FileName &path)
{
    struct stat open = {};
    struct stat named = {};
    return ::fstat(file, &open) == 0 && ::stat(path.system(), &named) == 0 && open.st_dev == named.st_dev &&
           open.st_ino == named.st_ino;
}

/// Brings the names in a folder to the disk. Some file systems cannot, and then keep them in another way.
void syncFolder(const FileName &path)
{
    const int folder = ::open(path.system(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return;
    ::fsync(folder);
    ::close(folder);
}

/// The hidden file in the same folder that takes the new content.
FileName besides(const FileName &path)
{
    std::filesystem::path hidden(".");
    hidden += path.path().filename();
    hidden += ".new";
    return path.path().parent_path() / hidden;
}

} // namespace

FileName behindLinks(const FileName &path)
{
    std::error_code error;
    if (path.exists())
        return std::filesystem::canonical(path.path(), error);
    if (std::filesystem::is_symlink(std::filesystem::symlink_status(path.path(), error)))
        throw CommandError(ExitCode::Unreadable, path,
                           UserWords::tr("the link leads to no file; mend or remove it"));
    return std::filesystem::absolute(path.path(), error);
}

FileReplacement::FileReplacement(const FileName &of) : FileReplacement(of, behindLinks(of)) {}

FileReplacement::FileReplacement(const FileName &of, const FileName &model)
    : path(behindLinks(of)), newPath(besides(path))
{
    // A device or a pipe would be a plain file from then on.
    if (of.exists() && !of.isRegularFile())
        throw CommandError(ExitCode::WriteFailed, of, UserWords::tr("it is no regular file; give one"));
    if (path.exists() && ::access(path.system(), W_OK) != 0)
        fail(UserWords::tr("the file may not be written"));
    std::error_code error;
    std::filesystem::create_directories(path.path().parent_path(), error);
    if (error)
        fail(UserWords::tr("its folder cannot be made"));
    lock();
    try {
        takeOver(model);
    } catch (...) { // no destructor runs for what was never constructed
        ::unlink(newPath.system());
        ::close(file);
        throw;
    }
}

FileReplacement::~FileReplacement()
{
    if (!committed)
        ::unlink(newPath.system());
    ::close(file); // last: this gives the lock away
}

void FileReplacement::lock()
{
    const QDeadlineTimer end(patience);
    while (!tryLock()) {
        if (end.hasExpired()) {
            throw CommandError(
                ExitCode::Busy, path,
                UserWords::tr("another program is writing this file; try again when it is done"));
        }
        std::this_thread::sleep_for(interval);
    }
}

bool FileReplacement::tryLock()
{
    file = ::open(newPath.system(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, ownerOnly);
    if (file < 0)
        fail(UserWords::tr("%1 cannot be opened (%2)").arg(newPath.shown(), qt_error_string(errno)));
    const int reason = ::flock(file, LOCK_EX | LOCK_NB) == 0 ? 0 : errno;
    // Between opening and locking, another program may have finished: then its file has moved on to be the
    // configuration itself, and this lock is worth nothing.
    if (reason == 0 && isNamed(file, newPath))
        return true;
    ::close(file);
    if (reason != 0 && reason != EWOULDBLOCK)
        fail(UserWords::tr("it cannot be locked (%1)").arg(qt_error_string(reason)));
    return false;
}

void FileReplacement::takeOver(const FileName &model)
{
    struct stat old = {};
    struct stat made = {};
    if (::fstat(file, &made) != 0 || ::ftruncate(file, 0) != 0)
        fail(qt_error_string(errno));
    if (::stat(model.system(), &old) != 0)
        return;
    if ((old.st_uid != made.st_uid || old.st_gid != made.st_gid) &&
        ::fchown(file, old.st_uid, old.st_gid) != 0)
        fail(UserWords::tr(
            "it belongs to another user or group, and would not any more; do this as its owner"));
    if (::fchmod(file, old.st_mode & 07777) != 0)
        fail(qt_error_string(errno));
}

void FileReplacement::writeAll(const QByteArray &content)
{
    qsizetype written = 0;
    while (written < content.size()) {
        const ssize_t count = ::write(file, content.constData() + written, content.size() - written);
        if (count < 0 && errno != EINTR)
            fail(qt_error_string(errno));
        written += std::max<ssize_t>(count, 0);
    }
    if (::fsync(file) != 0)
        fail(qt_error_string(errno));
}

void FileReplacement::commit(const QByteArray &content)
{
    writeAll(content);
    if (std::rename(newPath.system(), path.system()) != 0)
        fail(qt_error_string(errno));
    committed = true;
    syncFolder(path.path().parent_path());
}

void FileReplacement::fail(const QString &what) const
{
    throw CommandError(ExitCode::WriteFailed, path, UserWords::tr("%1; the file is unchanged").arg(what));
}
