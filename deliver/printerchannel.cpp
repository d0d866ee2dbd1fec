#include "printerchannel.h"

#include "serialline.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <linux/sockios.h>
#include <memory>
#include <netdb.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>

namespace {

constexpr std::chrono::milliseconds emptyPause{10}; ///< after a read that brought nothing

using AddressList = std::unique_ptr<addrinfo, decltype(&freeaddrinfo)>;

AddressList addressesOf(const std::string &host, int port, int &error)
{
    addrinfo hints{};
    hints.ai_socktype = SOCK_STREAM;
    addrinfo *list = nullptr;
    error = getaddrinfo(host.c_str(), std::to_string(port).c_str(), &hints, &list);
    return {error == 0 ? list : nullptr, freeaddrinfo};
}

/// "192.0.2.7"; "" when it has none.
std::string inNumbers(const addrinfo *address)
{
    char host[NI_MAXHOST];
    const int error =
        getnameinfo(address->ai_addr, address->ai_addrlen, host, sizeof host, nullptr, 0, NI_NUMERICHOST);
    return error == 0 ? host : "";
}

/// The address of a host that has several: an old kind of address, where there is one, for every printer has
/// that. It stays the same, for one job at a time is sent there.
std::string numberOf(const addrinfo *list)
{
    const addrinfo *address = list;
    while (address && address->ai_family != AF_INET)
        address = address->ai_next;
    return inNumbers(address ? address : list);
}

bool isAmong(const addrinfo *list, const std::string &number)
{
    while (list && inNumbers(list) != number)
        list = list->ai_next;
    return list;
}

/// The device that the path leads to; "" when there is none.
std::string deviceAt(const std::string &path)
{
    const std::unique_ptr<char, decltype(&free)> real(realpath(path.c_str(), nullptr), free);
    return real ? real.get() : "";
}

bool isHungUp(int descriptor)
{
    pollfd line{descriptor, 0, 0};
    return poll(&line, 1, 0) > 0 && (line.revents & (POLLHUP | POLLERR)) != 0;
}

int millisecondsUntil(Clock::time_point until)
{
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(until - Clock::now()).count();
    return int(std::clamp<long long>(left, 0, INT_MAX));
}

constexpr int underWay = 32 * 1024; ///< bytes at most, so that a printer that takes no more is noticed

/// A dead connection on which nothing is under way is found out within a minute, a living one that has
/// nothing to say is left alone.
void watch(int connection)
{
    const auto set = [connection](int level, int option, int value) {
        setsockopt(connection, level, option, &value, sizeof value);
    };
    set(SOL_SOCKET, SO_KEEPALIVE, 1);
    set(IPPROTO_TCP, TCP_KEEPIDLE, 20);
    set(IPPROTO_TCP, TCP_KEEPINTVL, 10);
    set(IPPROTO_TCP, TCP_KEEPCNT, 4);
    set(IPPROTO_TCP, TCP_NODELAY, 1);
    set(SOL_SOCKET, SO_SNDBUF, underWay);
}

} // namespace

std::string PrinterChannel::resolve()
{
    if (!isNetwork()) {
        resolved = deviceAt(where.path);
        reason = resolved.empty() ? std::strerror(errno) : "";
        return resolved;
    }
    int error = 0;
    const AddressList list = addressesOf(where.host, where.port, error);
    number = list ? numberOf(list.get()) : "";
    reason = list ? "" : gai_strerror(error);
    resolved = number.empty() ? "" : number + ' ' + std::to_string(where.port);
    return resolved;
}

/// A host may tell its addresses in another order each time, and a name server may be out of reach. A device
/// that is gone has not moved, but where a link led to it, another one may have its name.
bool PrinterChannel::isStillThere() const
{
    if (!isNetwork())
        return where.path == resolved || deviceAt(where.path) == resolved;
    int error = 0;
    const AddressList list = addressesOf(where.host, where.port, error);
    return !list || isAmong(list.get(), number);
}

PrinterChannel::Event PrinterChannel::open(Clock::time_point until)
{
    close();
    return isNetwork() ? openNetwork(until) : openDevice();
}

void PrinterChannel::close()
{
    if (descriptor >= 0)
        ::close(descriptor);
    descriptor = -1;
}

PrinterChannel::Event PrinterChannel::openNetwork(Clock::time_point until)
{
    int error = 0;
    const AddressList list = addressesOf(number, where.port, error);
    if (!list)
        return broken(EHOSTUNREACH);
    descriptor = socket(list->ai_family, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (descriptor < 0)
        return broken(errno);
    watch(descriptor);
    if (connect(descriptor, list->ai_addr, list->ai_addrlen) == 0)
        return Event::Ready;
    if (errno != EINPROGRESS)
        return broken(errno);
    const Event event = waitFor(descriptor, POLLOUT, until);
    socklen_t length = sizeof error;
    getsockopt(descriptor, SOL_SOCKET, SO_ERROR, &error, &length);
    if (event == Event::Ready && error != 0)
        return broken(error);
    return event == Event::Late ? broken(ETIMEDOUT) : event;
}

PrinterChannel::Event PrinterChannel::openDevice()
{
    if (!isBelowDev(resolved)) // a link may lead anywhere, and the backend may write everywhere
        return broken(ENODEV);
    descriptor = ::open(resolved.c_str(), O_RDWR | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    struct stat device;
    if (descriptor < 0 || fstat(descriptor, &device) != 0)
        return broken(errno);
    if (!S_ISCHR(device.st_mode))
        return broken(ENODEV);
    if (isatty(descriptor) && !setUpSerialLine(descriptor, where))
        return broken(errno);
    return Event::Ready;
}

PrinterChannel::Event PrinterChannel::broken(int error)
{
    closedInOrder = error == 0;
    reason = error == 0 ? "the printer closed the connection" : std::strerror(error);
    return Event::Broken;
}

PrinterChannel::Event PrinterChannel::waitFor(int other, short events, Clock::time_point until)
{
    switch (interrupted.wait(other, events, millisecondsUntil(until))) {
    case Interruptions::Woken::ByDescriptor:
        return Event::Ready;
    case Interruptions::Woken::ByTime:
        return Event::Late;
    case Interruptions::Woken::ByStop:
        break;
    }
    return Event::Stopped;
}

PrinterChannel::Event PrinterChannel::write(std::string_view bytes, std::size_t &written,
                                            Clock::time_point until)
{
    written = 0;
    const Event event = waitFor(descriptor, POLLOUT | POLLIN, until);
    if (event != Event::Ready)
        return event;
    const ssize_t length = isNetwork() ? send(descriptor, bytes.data(), bytes.size(), MSG_NOSIGNAL)
                                       : ::write(descriptor, bytes.data(), bytes.size());
    if (length < 0 && errno != EAGAIN && errno != EINTR)
        return broken(errno);
    written = length > 0 ? std::size_t(length) : 0;
    return Event::Ready;
}

PrinterChannel::Event PrinterChannel::read(std::string &bytes, Clock::time_point until)
{
    bytes.clear();
    const Event event = waitFor(descriptor, POLLIN, until);
    if (event != Event::Ready)
        return event;
    char piece[4096];
    const ssize_t length = ::read(descriptor, piece, sizeof piece);
    if (length < 0 && errno != EAGAIN && errno != EINTR)
        return broken(errno);
    if (length == 0 && (isNetwork() || isHungUp(descriptor)))
        return broken(isNetwork() ? 0 : ENODEV);
    if (length <= 0) // USB printers may send packets without bytes, over and over
        return waitFor(-1, 0, Clock::now() + emptyPause) == Event::Stopped ? Event::Stopped : Event::Ready;
    bytes.assign(piece, std::size_t(length));
    return Event::Ready;
}

void PrinterChannel::dropUnsent()
{
    if (!isNetwork())
        tcflush(descriptor, TCOFLUSH); // only lines have such bytes
}

void PrinterChannel::finishWriting()
{
    if (isNetwork())
        shutdown(descriptor, SHUT_WR);
}

int PrinterChannel::bytesOnTheWay() const
{
    int bytes = 0;
    if (ioctl(descriptor, SIOCOUTQ, &bytes) == 0 && bytes > 0) // of a line, too: the same number asks for it
        return bytes;
    pollfd waiting{descriptor, POLLOUT, 0}; // a USB printer is ready for more when it has taken all
    return poll(&waiting, 1, 0) > 0 ? 0 : 1;
}

/// Without reading: a connection whose other side is closed reads as that, again and again.
PrinterChannel::Event PrinterChannel::look()
{
    if (!isNetwork())
        return isHungUp(descriptor) ? broken(ENODEV) : Event::Ready;
    int error = 0;
    socklen_t length = sizeof error;
    getsockopt(descriptor, SOL_SOCKET, SO_ERROR, &error, &length);
    return error == 0 ? Event::Ready : broken(error);
}
