#include "inputfile.h"

#include "commanderror.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

[[noreturn]] void refuse(const FileName &name, const QString &why)
{
    throw CommandError(ExitCode::Unreadable, name, why);
}

bool isFolder(int descriptor)
{
    struct stat found = {};
    return ::fstat(descriptor, &found) == 0 && S_ISDIR(found.st_mode);
}

} // namespace

bool isStandardInput(const FileName &name)
{
    return name.bytes() == "-";
}

std::unique_ptr<QFile> openInput(const FileName &name)
{
    const int descriptor =
        isStandardInput(name) ? dup(STDIN_FILENO) : ::open(name.system(), O_RDONLY | O_CLOEXEC);
    auto file = std::make_unique<QFile>();
    if (descriptor < 0 || !file->open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        refuse(name, qt_error_string(descriptor < 0 ? errno : EISDIR));
    if (isFolder(descriptor)) // which opens, and cannot be read
        refuse(name, u"this is a folder; name a file"_s);
    return file;
}
