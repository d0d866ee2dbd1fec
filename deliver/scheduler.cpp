#include "scheduler.h"

#include <algorithm>
#include <cups/cups.h>
#include <iterator>
#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace {

using Answer = std::unique_ptr<ipp_t, decltype(&ippDelete)>;

bool isGood(const Answer &answer)
{
    return answer && ippGetStatusCode(answer.get()) <= IPP_STATUS_OK_EVENTS_COMPLETE;
}

ipp_t *requestFor(ipp_op_t operation, int job)
{
    ipp_t *request = ippNewRequest(operation);
    const std::string uri = "ipp://localhost/jobs/" + std::to_string(job);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, uri.c_str());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    return request;
}

Answer answerTo(ipp_t *request)
{
    return {cupsDoRequest(CUPS_HTTP_DEFAULT, request, "/jobs"), ippDelete};
}

Answer request(ipp_op_t operation, int job)
{
    return answerTo(requestFor(operation, job));
}

bool isDone(ipp_op_t operation, int job)
{
    return isGood(request(operation, job));
}

constexpr const char *wantedOfJobs[] = {"job-id",
                                        "job-uuid",
                                        "job-printer-uri",
                                        "job-printer-uri-actual", // of a class: the printer
                                        "job-state",
                                        "job-media-sheets-completed",
                                        "time-at-processing"};
constexpr int jobsLookedAt = 50;

/// The attributes of jobs that are "completed", the last ones first, or of "all". `limit` is the operation's
/// attribute that bounds them.
Answer jobs(const char *which, const char *limit, int value)
{
    ipp_t *request = ippNewRequest(IPP_OP_GET_JOBS);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, "ipp://localhost/");
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "which-jobs", nullptr, which);
    ippAddInteger(request, IPP_TAG_OPERATION, IPP_TAG_INTEGER, limit, value);
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  int(std::size(wantedOfJobs)), nullptr, wantedOfJobs);
    return {cupsDoRequest(CUPS_HTTP_DEFAULT, request, "/"), ippDelete};
}

/// "" when it has no value.
std::string textOf(ipp_attribute_t *attribute)
{
    const char *const text = ippGetString(attribute, 0, nullptr);
    return text ? text : "";
}

/// One job of an answer, attribute by attribute.
struct JobReader
{
    int number = 0;
    int state = 0;
    int sheets = -1;
    time_t started = 0;
    std::string uuid;
    std::string queue;
    std::string printer;

    void take(ipp_attribute_t *attribute)
    {
        const std::string_view name = ippGetName(attribute) ? ippGetName(attribute) : "";
        if (name == "job-id")
            number = ippGetInteger(attribute, 0);
        else if (name == "job-state")
            state = ippGetInteger(attribute, 0);
        else if (name == "job-media-sheets-completed")
            sheets = ippGetInteger(attribute, 0);
        else if (name == "time-at-processing")
            started = ippGetInteger(attribute, 0);
        else if (name == "job-uuid")
            uuid = textOf(attribute);
        else if (name == "job-printer-uri")
            queue = textOf(attribute);
        else if (name == "job-printer-uri-actual")
            printer = textOf(attribute);
    }
    bool isCompleted() const
    {
        return number > 0 && state == IPP_JSTATE_COMPLETED && started > 0 && !uuid.empty();
    }
    bool isOfClass() const { return queue.find("/classes/") != std::string::npos; }
    /// Where it was printed. A job that is moved out of a class keeps the name of the class's printer.
    const std::string &place() const { return isOfClass() && !printer.empty() ? printer : queue; }
};

constexpr const char *wantedOfQueue[] = {"device-uri", "printer-config-change-time"};

Answer attributesOf(const std::string &queue)
{
    ipp_t *request = ippNewRequest(IPP_OP_GET_PRINTER_ATTRIBUTES);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, queue.c_str());
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  int(std::size(wantedOfQueue)), nullptr, wantedOfQueue);
    return {cupsDoRequest(CUPS_HTTP_DEFAULT, request, "/"), ippDelete};
}

/// Whether the queue with those attributes prints through this backend.
bool isOfThisBackend(const Answer &queue)
{
    ipp_attribute_t *const uri = ippFindAttribute(queue.get(), wantedOfQueue[0], IPP_TAG_URI);
    return uri && std::string_view(ippGetString(uri, 0, nullptr)).starts_with("palvestrin:");
}

/// Since when the queue has printed through this backend as it does now; empty when it does not, or the
/// scheduler does not say.
std::optional<time_t> oursSince(const std::string &queue)
{
    const Answer answer = attributesOf(queue);
    if (!isGood(answer) || !isOfThisBackend(answer))
        return {};
    ipp_attribute_t *const changed = ippFindAttribute(answer.get(), wantedOfQueue[1], IPP_TAG_INTEGER);
    return changed ? ippGetInteger(changed, 0) : 0;
}

/// Asks for each queue once.
class Queues
{
public:
    /// Whether a job that was started then went through this backend.
    bool wereOurs(const std::string &queue, time_t started)
    {
        const auto [place, isNew] = known.try_emplace(queue);
        if (isNew)
            place->second = oursSince(queue);
        return place->second && started >= *place->second;
    }

private:
    std::map<std::string, std::optional<time_t>> known;
};

/// The jobs of an answer: each is a group of attributes.
std::vector<JobReader> jobsIn(const Answer &answer)
{
    std::vector<JobReader> jobs;
    bool isInside = false;
    for (ipp_attribute_t *each = ippFirstAttribute(answer.get()); each;
         each = ippNextAttribute(answer.get())) {
        const bool isOfJob = ippGetGroupTag(each) == IPP_TAG_JOB && ippGetName(each);
        if (isOfJob && !isInside)
            jobs.emplace_back();
        if (isOfJob)
            jobs.back().take(each);
        isInside = isOfJob;
    }
    return jobs;
}

} // namespace

std::optional<time_t> scheduler::endOf(int job)
{
    const Answer answer = request(IPP_OP_GET_JOB_ATTRIBUTES, job);
    if (!isGood(answer))
        return {};
    ipp_attribute_t *const end = ippFindAttribute(answer.get(), "time-at-completed", IPP_TAG_INTEGER);
    return end ? ippGetInteger(end, 0) : 0;
}

std::optional<bool> scheduler::hasOnce(int job)
{
    const Answer answer = jobs("all", "first-job-id", job);
    if (!isGood(answer))
        return {};
    return std::ranges::count(jobsIn(answer), job, &JobReader::number) == 1;
}

long long scheduler::leastSize(int job)
{
    const Answer answer = request(IPP_OP_GET_JOB_ATTRIBUTES, job);
    if (!isGood(answer))
        return 0;
    const auto number = [&answer](const char *name) {
        return ippGetInteger(ippFindAttribute(answer.get(), name, IPP_TAG_INTEGER), 0);
    };
    constexpr long long unit = 1024; // each document is rounded up to it
    return std::max(0, number("job-k-octets") - number("number-of-documents")) * unit;
}

bool scheduler::hold(int job)
{
    return isDone(IPP_OP_HOLD_JOB, job);
}

bool scheduler::isOver(int job)
{
    const Answer answer = request(IPP_OP_GET_JOB_ATTRIBUTES, job);
    if (!isGood(answer))
        return cupsLastError() == IPP_STATUS_ERROR_NOT_FOUND;
    ipp_attribute_t *const state = ippFindAttribute(answer.get(), "job-state", IPP_TAG_ENUM);
    return state && ippGetInteger(state, 0) >= IPP_JSTATE_CANCELED;
}

bool scheduler::release(int job)
{
    return isDone(IPP_OP_RELEASE_JOB, job);
}

std::vector<scheduler::CompletedJob> scheduler::completedJobs(time_t since)
{
    const Answer answer = jobs("completed", "limit", jobsLookedAt);
    if (!isGood(answer))
        return {};
    std::vector<CompletedJob> completed;
    Queues queues;
    for (const JobReader &job : jobsIn(answer)) {
        if (job.isCompleted() && job.started >= since)
            completed.push_back({job.number, job.uuid, job.place(), job.isOfClass(),
                                 job.sheets == 0 && queues.wereOurs(job.place(), job.started)});
    }
    return completed;
}

std::optional<bool> scheduler::isOurs(const std::string &queue)
{
    const Answer answer = attributesOf(queue);
    if (!isGood(answer))
        return {};
    return isOfThisBackend(answer);
}

bool scheduler::restart(int job)
{
    return isDone(IPP_OP_RESTART_JOB, job);
}

bool scheduler::restartHeld(int job)
{
    ipp_t *request = requestFor(IPP_OP_RESTART_JOB, job);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "job-hold-until", nullptr, "indefinite");
    return isGood(answerTo(request));
}
