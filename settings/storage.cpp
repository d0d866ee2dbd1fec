#include "storage.h"

#include "keyedit.h"
#include "knownkeys.h"
#include "usercatalogue.h"

#include <fcntl.h>
#include <unistd.h>

namespace {

bool mayBeWritten(const std::filesystem::path &path)
{
    return ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
}

/// The nearest folder above `path` that is there, or what stands in its place.
std::filesystem::path folderAbove(const std::filesystem::path &path)
{
    std::error_code error;
    std::filesystem::path folder = std::filesystem::absolute(path, error).parent_path();
    while (folder.has_relative_path() && !std::filesystem::exists(folder, error))
        folder = folder.parent_path();
    return folder;
}

} // namespace

QString storageObjection(const QString &key, const QString &value)
{
    if (const QString objection = valueObjection(value); !objection.isEmpty())
        return objection;
    const knownkeys::Key *known = knownkeys::find(key);
    return known && !value.isEmpty() ? knownkeys::objection(*known, value) : QString();
}

QString writingObstacle(const FileName &path)
{
    if (path.exists() && !mayBeWritten(path.path()))
        return UserWords::tr("You have no permission to change this file.");
    const std::filesystem::path folder = folderAbove(path.path());
    std::error_code error;
    if (!std::filesystem::is_directory(folder, error))
        return UserWords::tr("Its folder cannot be made: a file is in the way.");
    return mayBeWritten(folder) ? QString() : UserWords::tr("You have no permission to write in its folder.");
}
