#include "textfile.h"

#include "commanderror.h"
#include "filereplacement.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <streambuf>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// Writes to a device of the toolkit.
class DeviceBuffer : public std::streambuf
{
public:
    explicit DeviceBuffer(QIODevice &target) : device(target) {}

protected:
    int_type overflow(int_type character) override
    {
        return device.putChar(traits_type::to_char_type(character)) ? character : traits_type::eof();
    }
    std::streamsize xsputn(const char *bytes, std::streamsize count) override
    {
        return device.write(bytes, count);
    }

private:
    QIODevice &device;
};

/// Who may do what with the file: as with the one before it, else as the user's mask allows.
mode_t modeFor(const FileName &path)
{
    struct stat old = {};
    if (::stat(path.system(), &old) == 0)
        return old.st_mode & 07777;
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

} // namespace

TextFile::TextFile(const FileName &given) : name(given), path(behindLinks(given))
{
    const bool isDevice = path.exists() && !path.isRegularFile();
    const int descriptor = isDevice ? ::open(path.system(), O_WRONLY | O_CLOEXEC) : openBeside();
    if (descriptor < 0)
        fail(qt_error_string(errno));
    file.open(descriptor, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle);
    buffer = std::make_unique<DeviceBuffer>(file);
    out = std::make_unique<std::ostream>(buffer.get());
}

TextFile::~TextFile()
{
    if (!temporary.isEmpty())
        ::unlink(temporary.constData());
}

void TextFile::commit()
{
    if (!*out || !file.flush())
        fail(file.errorString());
    if (!temporary.isEmpty() && std::rename(temporary.constData(), path.system()) != 0)
        fail(qt_error_string(errno));
    temporary.clear();
}

int TextFile::openBeside()
{
    temporary = path.bytes() + ".XXXXXX";
    const int descriptor = ::mkostemp(temporary.data(), O_CLOEXEC);
    if (descriptor < 0)
        temporary.clear();
    else
        ::fchmod(descriptor, modeFor(path));
    return descriptor;
}

void TextFile::fail(const QString &reason) const
{
    throw CommandError(ExitCode::WriteFailed, name, reason);
}
