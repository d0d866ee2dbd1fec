#pragma once

#include <QThread>

/// A wait on a thread of its own: making one and letting it go out of scope takes the given time.
class SleepThread final : public QThread
{
public:
    /// Starts the wait.
    explicit SleepThread(unsigned long milliseconds);
    SleepThread(const SleepThread &) = delete;
    SleepThread &operator=(const SleepThread &) = delete;
    /// Waits for the end of the wait.
    ~SleepThread() override;

protected:
    void run() override;

private:
    const unsigned long milliseconds;
};
