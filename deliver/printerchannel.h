#pragma once

#include "deviceaddress.h"
#include "guard.h"

#include <chrono>
#include <string>
#include <string_view>

using Clock = std::chrono::steady_clock;

/// The line to a printer: a TCP connection, or a device. Nothing here waits longer than it is told to, and
/// each wait ends when the backend is to stop; only a name server may take its time.
class PrinterChannel
{
public:
    enum class Event {
        Ready,
        Late,    ///< the time is over
        Broken,  ///< the printer, or the way to it, is gone; `trouble` says how
        Stopped, ///< the backend is to stop
    };

    PrinterChannel(const DeviceAddress &address, Interruptions &interruptions)
        : where(address), interrupted(interruptions)
    {
    }
    ~PrinterChannel() { close(); }
    PrinterChannel(const PrinterChannel &) = delete;
    PrinterChannel &operator=(const PrinterChannel &) = delete;

    /// Finds the printer's address. "" when there is none now; `trouble` says why.
    std::string resolve();
    /// Whether it is known to be nowhere else.
    bool isStillThere() const;
    Event open(Clock::time_point until);
    void close();
    /// Writes as much as goes at once; `written` says how much. Ready also when something can be read.
    Event write(std::string_view bytes, std::size_t &written, Clock::time_point until);
    /// Reads what there is, which may be nothing. Broken when the printer has closed its side, in good order
    /// or not.
    Event read(std::string &bytes, Clock::time_point until);
    /// Tells the printer that nothing more comes. Its answer to that is that it closes its side.
    void finishWriting();
    /// What a line still keeps shall not come out later, by itself.
    void dropUnsent();
    /// Broken when the device is gone, or the connection with what is under way.
    Event look();
    /// Bytes on the way that the other side has not taken yet; 0 where nobody knows.
    int bytesOnTheWay() const;
    bool isNetwork() const { return !where.host.empty(); }
    /// Whether it is broken because the printer closed its side; it may still take what is on the way.
    bool isClosedInOrder() const { return closedInOrder; }
    /// Why it is broken, for people: "connection refused".
    const std::string &trouble() const { return reason; }

    /// Waits for a descriptor of somebody else's, or just for the time when it is -1.
    Event waitFor(int descriptor, short events, Clock::time_point until);

private:
    Event openNetwork(Clock::time_point until);
    Event openDevice();
    Event broken(int error);

    const DeviceAddress &where;
    Interruptions &interrupted;
    int descriptor = -1;
    std::string resolved; ///< number and port of a host, or the device
    std::string number;
    std::string reason;
    bool closedInOrder = false;
};
