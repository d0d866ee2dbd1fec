#pragma once

#include <string>
#include <sys/types.h>

/// One job at a time for each printer, across the queues and processes of this machine.
///
/// The lock is a socket whose name is the printer's, in the namespace of the system that has no files: it is
/// gone with its process, however that ends. Who waits is connected to it, and so wakes up when it goes.
class PrinterLock
{
public:
    /// `printer` is its address, the same in every process.
    explicit PrinterLock(const std::string &printer);
    ~PrinterLock();
    PrinterLock(const PrinterLock &) = delete;
    PrinterLock &operator=(const PrinterLock &) = delete;

    /// Takes it where it is free.
    bool tryTake();
    /// A descriptor to poll: it ends when the lock may be free. -1 when that must be tried later.
    int waiter();
    /// The process of another user that has the lock; 0 when it is one of this user's, or cannot be told.
    pid_t stranger() const;

private:
    void stopWaiting();

    std::string name;
    int held = -1;
    int waiting = -1;
};
