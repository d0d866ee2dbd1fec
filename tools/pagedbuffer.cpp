#include "pagedbuffer.h"

#include "commanderror.h"

#include <QFile>
#include <QStandardPaths>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <unistd.h>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The command line of the pager; "" when there is none, or none is wanted.
QString pagerCommand()
{
    if (qEnvironmentVariableIsSet("PAGER")) {
        const QString command = qEnvironmentVariable("PAGER");
        return command == "cat"_L1 ? QString() : command;
    }
    return QStandardPaths::findExecutable(u"less"_s).isEmpty() ? QString() : u"less"_s;
}

/// less shows colours, leaves the text on the screen, and is not needed for less than a screenful.
ChildProgram pagerProgram(const QString &command, int input)
{
    ChildProgram program{u"/bin/sh"_s, {"-c", QFile::encodeName(command)}};
    if (!qEnvironmentVariableIsSet("LESS"))
        program.environment.emplace_back("LESS", "FRX");
    program.input = input;
    return program;
}

} // namespace

PagedBuffer::PagedBuffer(int rowsOfScreen, int columnsOfScreen)
    : screenRows(rowsOfScreen), screenColumns(columnsOfScreen),
      isHolding(screenRows > 0 && !pagerCommand().isEmpty())
{
}

PagedBuffer::~PagedBuffer()
{
    try {
        finish();
    } catch (const CommandError &) { // whoever wanted to know has called it
    }
}

void PagedBuffer::finish()
{
    writeHeld();
    if (pager >= 0) {
        pipe->closeWriteEnd();
        waitForChild(std::exchange(pager, -1), u"the pager"_s);
    }
    const bool hasLeftEarly = pipe && failure == EPIPE;
    if (const int error = std::exchange(failure, 0); error != 0 && !hasLeftEarly) {
        throw CommandError(ExitCode::WriteFailed,
                           u"standard output cannot be written: "_s + qt_error_string(error));
    }
}

PagedBuffer::int_type PagedBuffer::overflow(int_type character)
{
    const char byte = traits_type::to_char_type(character);
    return xsputn(&byte, 1) == 1 ? character : traits_type::eof();
}

std::streamsize PagedBuffer::xsputn(const char *bytes, std::streamsize count)
{
    const std::string_view text(bytes, count);
    held.append(text);
    if (isHolding)
        measure(text);
    constexpr std::size_t enough = 16384; // bytes, for one write
    const bool isTaken = isHolding || held.size() < enough || writeHeld();
    return isTaken ? count : 0;
}

/// Counts the rows that the text fills, and starts the pager when they are too many.
void PagedBuffer::measure(std::string_view text)
{
    for (const char byte : text) {
        const bool isContinued = (byte & 0xc0) == 0x80;
        if (byte == '\n')
            endRow();
        else if (isInSequence)
            isInSequence = byte != 'm';
        else if (byte == '\033')
            isInSequence = true;
        else if (!isContinued)
            ++columns;
    }
    if (rows >= screenRows) // the last one is for the prompt
        startPager();
}

void PagedBuffer::endRow()
{
    rows += screenColumns > 0 ? 1 + std::max(0, columns - 1) / screenColumns : 1;
    columns = 0;
}

void PagedBuffer::startPager()
{
    isHolding = false;
    pipe = std::make_unique<Pipe>();
    pager = startChild(pagerProgram(pagerCommand(), pipe->readEnd()));
    pipe->closeReadEnd();
    // Both are the pager's business now: who interrupts it does not mean this program, and who leaves it
    // closes the pipe.
    std::signal(SIGINT, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN);
}

bool PagedBuffer::writeHeld()
{
    const bool isWritten = failure == 0 && write(held);
    held.clear();
    return isWritten;
}

bool PagedBuffer::write(std::string_view bytes)
{
    const int target = pager >= 0 ? pipe->writeEnd() : STDOUT_FILENO;
    while (!bytes.empty()) {
        const ssize_t written = ::write(target, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) {
            failure = errno;
            return false;
        }
        bytes.remove_prefix(written < 0 ? 0 : written);
    }
    return true;
}
