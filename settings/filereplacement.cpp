#include "filereplacement.h"

#include "commanderror.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>

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
bool isNamed(int file, const QByteArray &path)
{
    struct stat open = {};
    struct stat named = {};
    return ::fstat(file, &open) == 0 && ::stat(path.constData(), &named) == 0 &&
           open.st_dev == named.st_dev && open.st_ino == named.st_ino;
}

/// Brings the names in a folder to the disk. Some file systems cannot, and then keep them in another way.
void syncFolder(const QString &path)
{
    const int folder = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return;
    ::fsync(folder);
    ::close(folder);
}

} // namespace

QString behindLinks(const QString &path)
{
    const QFileInfo info(path);
    if (info.isSymLink() && !info.exists())
        throw CommandError(ExitCode::Unreadable, path, u"the link leads to no file; mend or remove it"_s);
    return info.exists() ? info.canonicalFilePath() : info.absoluteFilePath();
}

FileReplacement::FileReplacement(const QString &of) : FileReplacement(of, behindLinks(of)) {}

FileReplacement::FileReplacement(const QString &of, const QString &model) : path(behindLinks(of))
{
    const QFileInfo info(path);
    // A device or a pipe would be a plain file from then on.
    if (const QFileInfo given(of); given.exists() && !given.isFile())
        throw CommandError(ExitCode::WriteFailed, of, u"it is no regular file; give one"_s);
    newPath = QFile::encodeName(info.absolutePath() + "/."_L1 + info.fileName() + ".new"_L1);
    if (info.exists() && ::access(QFile::encodeName(path).constData(), W_OK) != 0)
        fail(u"the file may not be written"_s);
    if (!QDir().mkpath(info.absolutePath()))
        fail(u"its folder cannot be made"_s);
    lock();
    try {
        takeOver(model);
    } catch (...) { // no destructor runs for what was never constructed
        ::unlink(newPath.constData());
        ::close(file);
        throw;
    }
}

FileReplacement::~FileReplacement()
{
    if (!committed)
        ::unlink(newPath.constData());
    ::close(file); // last: this gives the lock away
}

void FileReplacement::lock()
{
    const QDeadlineTimer end(patience);
    while (!tryLock()) {
        if (end.hasExpired()) {
            throw CommandError(ExitCode::Busy, path,
                               u"another program is writing this file; try again when it is done"_s);
        }
        std::this_thread::sleep_for(interval);
    }
}

bool FileReplacement::tryLock()
{
    file = ::open(newPath.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, ownerOnly);
    if (file < 0)
        fail(u"%1 cannot be opened (%2)"_s.arg(QFile::decodeName(newPath), qt_error_string(errno)));
    const int reason = ::flock(file, LOCK_EX | LOCK_NB) == 0 ? 0 : errno;
    // Between opening and locking, another program may have finished: then its file has moved on to be the
    // configuration itself, and this lock is worth nothing.
    if (reason == 0 && isNamed(file, newPath))
        return true;
    ::close(file);
    if (reason != 0 && reason != EWOULDBLOCK)
        fail(u"it cannot be locked (%1)"_s.arg(qt_error_string(reason)));
    return false;
}

void FileReplacement::takeOver(const QString &model)
{
    struct stat old = {};
    struct stat made = {};
    if (::fstat(file, &made) != 0 || ::ftruncate(file, 0) != 0)
        fail(qt_error_string(errno));
    if (::stat(QFile::encodeName(model).constData(), &old) != 0)
        return;
    if ((old.st_uid != made.st_uid || old.st_gid != made.st_gid) &&
        ::fchown(file, old.st_uid, old.st_gid) != 0)
        fail(u"it belongs to another user or group, and would not any more; do this as its owner"_s);
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
    if (std::rename(newPath.constData(), QFile::encodeName(path).constData()) != 0)
        fail(qt_error_string(errno));
    committed = true;
    syncFolder(QFileInfo(path).absolutePath());
}

void FileReplacement::fail(const QString &what) const
{
    throw CommandError(ExitCode::WriteFailed, path, u"%1; the file is unchanged"_s.arg(what));
}
