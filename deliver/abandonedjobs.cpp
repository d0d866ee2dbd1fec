#include "abandonedjobs.h"

#include "jobrecord.h"
#include "scheduler.h"

#include <algorithm>
#include <ctime>

namespace {

constexpr time_t longAgo = 24L * 60 * 60; // seconds; for so long the server usually keeps the files of a job

/// A class may have it printed by another backend, which knows no records.
void startAgain(const scheduler::CompletedJob &job)
{
    if (job.isOfClass)
        scheduler::restartHeld(job.number);
    else
        scheduler::restart(job.number);
}

} // namespace

/// Not before records were kept: jobs without one may have been printed some other way.
void saveAbandonedJobs(const OwnFolder &folder)
{
    const time_t since = std::max(recordsKeptSince(folder), time(nullptr) - longAgo);
    for (const scheduler::CompletedJob &job : scheduler::completedJobs(since))
        settleFreeRecord(
            folder, job.uuid, job.isUncounted, [&job] { return scheduler::isOurs(job.queue); },
            [&job] { startAgain(job); });
    removeOldRecords(folder);
}
