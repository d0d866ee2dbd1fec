#pragma once

#include <QByteArrayList>
#include <QString>

#include <functional>
#include <sys/types.h>

/// How a run of the renderer ended.
struct Ending
{
    bool hasExited = false; ///< by itself, not by a signal
    int exitStatus = 0;
    bool wasTooSlow = false; ///< it was killed at the end of its time
    double processorSeconds = 0;
    QByteArray standardOutput;
    QByteArray standardError;
};

/// One run of `palvestrin-print`, or of another program of the house. It inherits HOME and the locale of the
/// test; its two streams are collected in memory. A run that is still going when this is destroyed is killed.
class RendererProcess
{
public:
    /// Starts the renderer. `beforeStart` runs in the new process, where only system calls are allowed: for
    /// limits and streams of a kind of its own.
    RendererProcess(const QString &input, const QString &output,
                    const std::function<void()> &beforeStart = {});
    /// Starts the program of that path with its arguments.
    explicit RendererProcess(const QByteArrayList &command, const std::function<void()> &beforeStart = {});
    ~RendererProcess();
    RendererProcess(const RendererProcess &) = delete;
    RendererProcess &operator=(const RendererProcess &) = delete;

    void send(int signal) const;
    /// Waits for the end, at most `seconds` of real time, and kills it then.
    Ending wait(int seconds);
    /// Processor time so far.
    double processorSeconds() const;

private:
    pid_t process = -1;
    int standardOutput = -1; ///< reading ends of pipes
    int standardError = -1;
};

/// A whole run.
inline Ending render(const QString &input, const QString &output,
                     const std::function<void()> &beforeStart = {})
{
    constexpr int patience = 100;
    return RendererProcess(input, output, beforeStart).wait(patience);
}
