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

// For a backend whose guard was killed: its exit code reaches nobody.

bool hold(int job);
/// Whether the job has ended, or was removed. False when the scheduler does not say.
bool isOver(int job);
/// Has the scheduler start the job again.
bool release(int job);

// For jobs whose backend was killed whole.

/// A job that the scheduler takes for printed, though no sheet of it was counted.
struct DoubtfulJob
{
    int number;
    std::string uuid;
};

/// Those among the jobs that ended last which were started `since` then, on a queue that was one of this
/// backend.
std::vector<DoubtfulJob> doubtfulJobs(time_t since);
/// Has a job that ended started again.
bool restart(int job);

} // namespace scheduler
