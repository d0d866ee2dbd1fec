#include "abandonedjobs.h"

#include "jobrecord.h"
#include "scheduler.h"

#include <algorithm>
#include <ctime>

namespace {

constexpr time_t longAgo = 12 * 60 * 60; // seconds; nobody waits for an older ticket

/// Has the scheduler start a job again that its record does not call finished. Returns what the record is to
/// say then: nobody who was to hold it has heard of that.
JobRecord::State restarted(int job, JobRecord::State state)
{
    using State = JobRecord::State;
    const bool isFinished = state != State::New && state != State::Sending && state != State::Held;
    return !isFinished && scheduler::restart(job) && state == State::Held ? State::Sending : state;
}

} // namespace

/// Not before records were kept: jobs without one may have been printed some other way.
void saveAbandonedJobs(const std::string &folder)
{
    const time_t since = std::max(recordsKeptSince(folder), time(nullptr) - longAgo);
    for (const scheduler::DoubtfulJob &job : scheduler::doubtfulJobs(since))
        changeFreeRecord(folder, job.uuid,
                         [&](JobRecord::State state) { return restarted(job.number, state); });
    removeOldRecords(folder);
}
