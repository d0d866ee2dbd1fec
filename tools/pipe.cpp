#include "pipe.h"

#include "commanderror.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

Pipe::Pipe()
{
    if (pipe2(ends.data(), O_CLOEXEC) != 0) {
        throw CommandError(ExitCode::Unreadable,
                           QStringLiteral("no pipe to another program: ") + qt_error_string(errno));
    }
}

Pipe::~Pipe()
{
    closeReadEnd();
    closeWriteEnd();
}

void Pipe::close(int &end)
{
    if (end >= 0)
        ::close(std::exchange(end, -1));
}
