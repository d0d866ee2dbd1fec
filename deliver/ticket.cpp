#include "ticket.h"

#include "commands.h"
#include "profiles.h"

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr std::size_t pieceSize = 16384;

int unnamedFile(const std::string &folder)
{
    std::string name = folder + "/palvestrin-XXXXXX";
    const int descriptor = mkostemp(name.data(), O_CLOEXEC);
    if (descriptor >= 0)
        unlink(name.c_str());
    return descriptor;
}

bool writeAll(int descriptor, const char *bytes, ssize_t length)
{
    while (length > 0) {
        const ssize_t written = write(descriptor, bytes, std::size_t(length));
        if (written < 0)
            return false;
        bytes += written;
        length -= written;
    }
    return true;
}

/// The number of bytes, -1 when not all of them could be copied.
off_t copyAll(int from, int to)
{
    char piece[pieceSize];
    off_t size = 0;
    ssize_t length = 0;
    while ((length = read(from, piece, sizeof piece)) > 0) {
        if (!writeAll(to, piece, length))
            return -1;
        size += length;
    }
    return length < 0 ? -1 : size;
}

std::string bytesOf(QByteArrayView bytes)
{
    return {bytes.data(), std::size_t(bytes.size())};
}

} // namespace

std::string Ticket::restOfTorn()
{
    constexpr int widest = std::ranges::max(profiles, {}, &Profile::dots).dots;
    return std::string(command::restOfPicture(widest), '\0');
}

std::optional<Ticket> Ticket::fromStandardInput(const std::string &folder)
{
    const int file = unnamedFile(folder);
    const off_t size = file < 0 ? -1 : copyAll(STDIN_FILENO, file);
    if (size >= 0)
        return Ticket(file, size);
    if (file >= 0)
        close(file);
    return {};
}

std::optional<Ticket> Ticket::fromFile(const char *path)
{
    const int file = open(path, O_RDONLY | O_CLOEXEC);
    struct stat status;
    if (file >= 0 && fstat(file, &status) == 0 && S_ISREG(status.st_mode))
        return Ticket(file, status.st_size);
    if (file >= 0)
        close(file);
    return {};
}

Ticket::Ticket(int file, off_t size) : descriptor(file), bytes(size)
{
    if (canBeMarked())
        head = restOfTorn();
}

Ticket::Ticket(Ticket &&other) noexcept
    : descriptor(std::exchange(other.descriptor, -1)), bytes(other.bytes), copies(other.copies),
      head(std::move(other.head))
{
}

Ticket::~Ticket()
{
    if (descriptor >= 0)
        close(descriptor);
}

/// Receipt printers are initialised at the start of a job, behind zero bytes where it has a picture.
bool Ticket::canBeMarked() const
{
    const std::string beginning = read(0);
    const std::size_t place = beginning.find_first_not_of('\0');
    return place != std::string::npos && beginning.compare(place, 2, bytesOf(command::initialise)) == 0;
}

void Ticket::markAsCopy()
{
    if (!canBeMarked())
        return;
    const auto with = [](QByteArrayView command, char parameter) { return bytesOf(command) + parameter; };
    head = restOfTorn() + bytesOf(command::initialise) + bytesOf(command::leaveChinese) +
           with(command::size, 0x11) + "COPY" + command::lineEnd + with(command::size, 0x00);
}

std::string Ticket::piece(off_t place) const
{
    const auto headSize = off_t(head.size());
    if (place < headSize)
        return head.substr(std::size_t(place));
    if (place >= size())
        return {};
    return read((place - headSize) % bytes);
}

/// Of one copy.
std::string Ticket::read(off_t place) const
{
    std::string piece(std::size_t(std::min(bytes - place, off_t(pieceSize))), '\0');
    const ssize_t length = pread(descriptor, piece.data(), piece.size(), place);
    piece.resize(length > 0 ? std::size_t(length) : 0);
    return piece;
}
