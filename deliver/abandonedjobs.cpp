#include "abandonedjobs.h"

#include "jobrecord.h"
#include "scheduler.h"

#include <algorithm>
#include <ctime>

namespace {

constexpr time_t longAgo = 24L * 60 * 60; // seconds; for so long the server usually keeps the files of a job

} // namespace

/// Not before records were kept: jobs without one may have been printed some other way.
void saveAbandonedJobs(const OwnFolder &folder)
{
    const time_t since = std::max(recordsKeptSince(folder), time(nullptr) - longAgo);
    for (const scheduler::CompletedJob &job : scheduler::completedJobs(since))
        doubtFreeRecord(folder, job.uuid, job.isUncounted, [&job] {
            if (scheduler::isOurs(job.queue)) // it may have been moved
                scheduler::restart(job.number);
        });
    removeOldRecords(folder);
}
