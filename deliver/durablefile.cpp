#include "durablefile.h"

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr int asFolder = O_RDONLY | O_DIRECTORY | O_CLOEXEC;

bool syncParentOf(const std::string &path)
{
    const int parent = open(path.substr(0, path.rfind('/')).c_str(), asFolder);
    const bool isSynced = parent >= 0 && fsync(parent) == 0;
    if (parent >= 0)
        close(parent);
    return isSynced;
}

bool isOwn(int descriptor)
{
    struct stat folder;
    return fstat(descriptor, &folder) == 0 && folder.st_uid == geteuid() &&
           (folder.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

} // namespace

std::optional<OwnFolder> OwnFolder::at(const std::string &path)
{
    const bool isMade = mkdir(path.c_str(), 0700) == 0;
    if (isMade ? !syncParentOf(path) : errno != EEXIST)
        return {};
    OwnFolder folder(::open(path.c_str(), asFolder | O_NOFOLLOW));
    if (folder.descriptor < 0 || !isOwn(folder.descriptor))
        return {};
    return folder;
}

OwnFolder::OwnFolder(OwnFolder &&other) noexcept : descriptor(std::exchange(other.descriptor, -1)) {}

OwnFolder::~OwnFolder()
{
    if (descriptor >= 0)
        close(descriptor);
}

int OwnFolder::open(const std::string &name, int flags) const
{
    return openat(descriptor, name.c_str(), flags | O_CLOEXEC | O_NOFOLLOW, 0600);
}

std::optional<struct stat> OwnFolder::status(const std::string &name) const
{
    struct stat file;
    if (fstatat(descriptor, name.c_str(), &file, AT_SYMLINK_NOFOLLOW) != 0)
        return {};
    return file;
}

void OwnFolder::remove(const std::string &name) const
{
    unlinkat(descriptor, name.c_str(), 0);
}

void OwnFolder::list(const std::function<void(const std::string &name)> &take) const
{
    DIR *const names = fdopendir(openat(descriptor, ".", asFolder));
    if (!names)
        return;
    while (const dirent *entry = readdir(names))
        take(entry->d_name);
    closedir(names);
}

bool OwnFolder::sync() const
{
    return fsync(descriptor) == 0;
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
