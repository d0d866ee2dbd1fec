#include "durablefile.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

std::string parentOf(const std::string &path)
{
    return path.substr(0, path.rfind('/'));
}

/// Whether it is a folder that nobody else can change.
bool isOwn(const std::string &path)
{
    struct stat folder;
    return lstat(path.c_str(), &folder) == 0 && S_ISDIR(folder.st_mode) && folder.st_uid == geteuid() &&
           (folder.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

} // namespace

bool makeFolder(const std::string &path)
{
    if (mkdir(path.c_str(), 0700) == 0)
        return syncFolder(parentOf(path));
    return errno == EEXIST && isOwn(path);
}

bool syncFolder(const std::string &path)
{
    const int folder = open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return false;
    const bool isSynced = fsync(folder) == 0;
    close(folder);
    return isSynced;
}

bool rewriteDurably(int descriptor, std::string_view content)
{
    return pwrite(descriptor, content.data(), content.size(), 0) == ssize_t(content.size()) &&
           fdatasync(descriptor) == 0;
}

std::string contentOf(int descriptor, std::size_t most)
{
    std::string content(most, '\0');
    const ssize_t length = pread(descriptor, content.data(), most, 0);
    content.resize(length > 0 ? std::size_t(length) : 0);
    return content;
}

std::string contentOf(const std::string &path, std::size_t most)
{
    const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return {};
    std::string content(most, '\0');
    const ssize_t length =
        read(descriptor, content.data(), most); // files of the kernel cannot be read at a place
    close(descriptor);
    content.resize(length > 0 ? std::size_t(length) : 0);
    return content;
}
