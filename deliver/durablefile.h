#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <sys/stat.h>

/// A folder that nobody else can change. It stays the same one, whatever becomes of its name: others may
/// change the folder above it, and the backend may write everywhere.
class OwnFolder
{
public:
    /// Makes the folder, for the owner alone, unless it is there. Empty when that fails, and when it is a
    /// link or others can change it.
    static std::optional<OwnFolder> at(const std::string &path);

    OwnFolder(OwnFolder &&other) noexcept;
    OwnFolder &operator=(OwnFolder &&) = delete;
    ~OwnFolder();

    /// A descriptor of the file of that name, which is not a link; -1 when that fails. It is made for the
    /// owner alone where `flags` say so. Not passed on to other programs.
    int open(const std::string &name, int flags) const;
    /// What the file of that name is; empty when there is none.
    std::optional<struct stat> status(const std::string &name) const;
    void remove(const std::string &name) const;
    /// Calls `take` with each name in it.
    void list(const std::function<void(const std::string &name)> &take) const;
    /// Waits until the names are on the disk.
    bool sync() const;

private:
    explicit OwnFolder(int folder) : descriptor(folder) {}

    int descriptor;
};

/// Replaces the content of an open file and waits until it is on the disk.
bool rewriteDurably(int descriptor, std::string_view content);
/// The first `most` bytes of a file, "" when it cannot be read.
std::string contentOf(const std::string &path, std::size_t most = 4096);
std::string contentOf(int descriptor, std::size_t most = 4096);
