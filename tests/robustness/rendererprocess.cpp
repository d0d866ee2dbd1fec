#include "rendererprocess.h"

#include <QFile>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

/// What the renderer has left in a pipe: a few lines, far less than a pipe holds.
QByteArray collected(int pipe)
{
    constexpr qsizetype pipeSize = 65'536;
    QByteArray bytes(pipeSize, Qt::Uninitialized);
    return bytes.left(qMax<qsizetype>(0, read(pipe, bytes.data(), bytes.size())));
}

double seconds(const timeval &time)
{
    return double(time.tv_sec) + double(time.tv_usec) / 1e6;
}

} // namespace

RendererProcess::RendererProcess(const QString &input, const QString &output,
                                 const std::function<void()> &beforeStart)
    : RendererProcess({PALVESTRIN_PRINT, QFile::encodeName(input), QFile::encodeName(output)}, beforeStart)
{
}

RendererProcess::RendererProcess(const QByteArrayList &command, const std::function<void()> &beforeStart)
{
    std::vector<char *> words;
    for (const QByteArray &word : command)
        words.push_back(const_cast<char *>(word.constData()));
    words.push_back(nullptr);
    int outputEnds[2];
    int errorEnds[2];
    if (pipe2(outputEnds, O_CLOEXEC) < 0 || pipe2(errorEnds, O_CLOEXEC) < 0)
        qFatal("no pipe");
    process = fork();
    if (process < 0)
        qFatal("no process");
    if (process == 0) {
        dup2(outputEnds[1], STDOUT_FILENO);
        dup2(errorEnds[1], STDERR_FILENO);
        if (beforeStart)
            beforeStart();
        execv(words.front(), words.data());
        std::_Exit(EXIT_FAILURE);
    }
    close(outputEnds[1]);
    close(errorEnds[1]);
    standardOutput = outputEnds[0];
    standardError = errorEnds[0];
}

RendererProcess::~RendererProcess()
{
    if (process > 0) {
        send(SIGKILL);
        waitpid(process, nullptr, 0);
    }
    close(standardOutput);
    close(standardError);
}

void RendererProcess::send(int signal) const
{
    kill(process, signal);
}

Ending RendererProcess::wait(int seconds)
{
    using namespace std::chrono;
    const auto end = steady_clock::now() + std::chrono::seconds(seconds);
    Ending ending;
    int status = 0;
    rusage usage = {};
    while (wait4(process, &status, WNOHANG, &usage) == 0) {
        if (steady_clock::now() > end && !ending.wasTooSlow) {
            ending.wasTooSlow = true;
            send(SIGKILL);
        }
        std::this_thread::sleep_for(milliseconds(1));
    }
    process = -1;
    ending.hasExited = WIFEXITED(status);
    ending.exitStatus = WEXITSTATUS(status);
    ending.processorSeconds = ::seconds(usage.ru_utime) + ::seconds(usage.ru_stime);
    ending.standardOutput = collected(standardOutput);
    ending.standardError = collected(standardError);
    return ending;
}

double RendererProcess::processorSeconds() const
{
    QFile file(QStringLiteral("/proc/%1/schedstat").arg(process)); // nanoseconds on a processor, and more
    if (!file.open(QIODevice::ReadOnly))
        qFatal("the renderer is gone");
    return file.readAll().split(' ').first().toDouble() / 1e9;
}
