#pragma once

#include <ctime>
#include <optional>
#include <string>
#include <vector>

/// What the backend asks of the scheduler that started it.
namespace scheduler {

/// When the job came to its end, as far as the scheduler noted; 0 when it never did. Empty when it does not
/// say.
std::optional<time_t> endOf(int job);

/// Whether it has the job once. One that was killed may read its jobs twice, and start each of them twice.
/// Empty when it does not say.
std::optional<bool> hasOnce(int job);

/// How many bytes the documents of the job have together, or less: the scheduler counts KiB. 0 when it does
/// not say.
long long leastSize(int job);

// For a backend whose guard was killed: its exit code reaches nobody.

bool hold(int job);
/// Whether the job has ended, or was removed. False when the scheduler does not say.
bool isOver(int job);
/// Has the scheduler start the job again.
bool release(int job);

// For jobs whose backend was killed whole.

/// A job that the scheduler takes for printed.
struct CompletedJob
{
    int number;
    std::string uuid;
    std::string queue; ///< where it was printed; of a class: the printer
    bool isOfClass;
    /// No sheet of it was counted, and its queue has been this backend's since before. That tells of a job
    /// without a record; else the record tells more: filters count sheets, too, and so did an earlier run of
    /// the job.
    bool isUncounted;
};

/// Those among the jobs that ended last which were started `since` then.
std::vector<CompletedJob> completedJobs(time_t since);
/// Whether the queue prints through this backend now. Empty when it does not say.
std::optional<bool> isOurs(const std::string &queue);
/// Has a job that ended started again.
bool restart(int job);
/// The same, when a person has released it.
bool restartHeld(int job);

} // namespace scheduler
