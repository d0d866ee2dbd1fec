#include "printerlock.h"

#include <algorithm>
#include <cstddef>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr std::string_view prefix("\0palvestrin-printer/", 20);

int localSocket()
{
    return socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
}

template <typename Operation>
bool callWith(const std::string &name, Operation operation, int descriptor)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::ranges::copy(name, address.sun_path);
    const auto length = socklen_t(offsetof(sockaddr_un, sun_path) + name.size());
    return operation(descriptor, reinterpret_cast<const sockaddr *>(&address), length) == 0;
}

} // namespace

/// A name that is too long keeps its end, which tells devices apart.
PrinterLock::PrinterLock(const std::string &printer) : name(prefix)
{
    const std::size_t room = sizeof(sockaddr_un::sun_path) - prefix.size();
    name += printer.substr(printer.size() > room ? printer.size() - room : 0);
}

PrinterLock::~PrinterLock()
{
    stopWaiting();
    if (held >= 0)
        close(held);
}

bool PrinterLock::tryTake()
{
    stopWaiting();
    const int descriptor = localSocket();
    if (callWith(name, bind, descriptor) && listen(descriptor, SOMAXCONN) == 0) {
        held = descriptor;
        return true;
    }
    close(descriptor);
    return false;
}

int PrinterLock::waiter()
{
    stopWaiting();
    waiting = localSocket();
    if (!callWith(name, connect, waiting))
        stopWaiting();
    return waiting;
}

/// The names of sockets are everybody's.
pid_t PrinterLock::stranger() const
{
    ucred holder{};
    socklen_t length = sizeof holder;
    const bool isKnown = waiting >= 0 && getsockopt(waiting, SOL_SOCKET, SO_PEERCRED, &holder, &length) == 0;
    return isKnown && holder.uid != geteuid() ? holder.pid : 0;
}

void PrinterLock::stopWaiting()
{
    if (waiting >= 0)
        close(waiting);
    waiting = -1;
}
