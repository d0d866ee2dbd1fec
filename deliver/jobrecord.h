#pragma once

#include "durablefile.h"

#include <ctime>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <sys/types.h>

/// What is known of one job, on the disk, so that it outlives the backend, the scheduler and the machine.
///
/// The record is the lock of its job, too: whoever has it open is the only one who prints the job. A child
/// process shares it. It says "sending" before the first byte of the job goes out, so that a backend which is
/// killed at any moment leaves a job that may be on paper, and never one that looks as if it were not.
class JobRecord
{
public:
    enum class State {
        New,
        Sending,     ///< bytes may have gone out, and nobody has been told how it ended
        Held,        ///< nobody knows whether it is on paper, and the scheduler has been told to hold it
        Printed,     ///< the printer confirmed it
        Unconfirmed, ///< all of it was sent to a printer that confirms nothing
        // The same, and the scheduler starts the job again only to be told so.
        PrintedUntold,
        UnconfirmedUntold,
    };

    /// No record is kept: nobody will start the job again.
    JobRecord() = default;
    /// Opens the record and waits until nobody else has it. `uuid` is that of the job.
    JobRecord(const OwnFolder &folder, std::string_view uuid, std::string thisScheduler);
    ~JobRecord();
    JobRecord(const JobRecord &) = delete;
    JobRecord &operator=(const JobRecord &) = delete;

    /// False when the record cannot be kept: then nothing must be sent.
    bool isKept() const { return isSound; }
    State state() const { return known; }
    /// Whether the scheduler that runs now was told so, not one that ran before.
    bool isOfThisScheduler() const { return ofThisScheduler; }
    /// The last end of the job that the scheduler had noted when this run of it began, by its clock; 0 for
    /// none. Another one was noted since: then somebody wants the job anew.
    time_t endBefore() const { return knownEnd; }
    /// Keeps it, from the next `set` on.
    void setEndBefore(time_t end) { knownEnd = end; }
    /// Writes it down, durably. False when that cannot be done.
    bool set(State state);

private:
    void read();

    int descriptor = -1;
    bool isSound = true;
    bool ofThisScheduler = false;
    State known = State::New;
    time_t knownEnd = 0;
    std::string scheduler;
};

/// A text that no other process on this machine has or will have.
std::string identityOf(pid_t process);

/// Looks at the record of a job that ended for the scheduler, unless somebody has it open; nobody can open it
/// meanwhile. Where it says that the job did not come to an end, and `isOurs` that it was not printed
/// elsewhere, calls `doubt`; where `isOurs` does not know, all stays as it is. By then it says that bytes may
/// have gone out, whatever it said before: the job is not taken for one that a person released, and not
/// printed behind the back of a person who has taken it for lost. A job without a record is doubted, and gets
/// one, when `evenWithoutRecord`.
void settleFreeRecord(const OwnFolder &folder, std::string_view uuid, bool evenWithoutRecord,
                      const std::function<std::optional<bool>()> &isOurs, const std::function<void()> &doubt);
/// Since when records have been kept in the folder; now when none are.
time_t recordsKeptSince(const OwnFolder &folder);
/// Removes records that nobody needs any more, once an hour.
void removeOldRecords(const OwnFolder &folder);
