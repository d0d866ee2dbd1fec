#include "backend.h"

#include "abandonedjobs.h"
#include "delivery.h"
#include "devicelist.h"
#include "guard.h"
#include "jobrecord.h"
#include "scheduler.h"
#include "sentences.h"

#include <csignal>
#include <cstdlib>
#include <cups/backend.h>
#include <cups/cups.h>
#include <memory>
#include <optional>
#include <thread>
#include <unistd.h>

using namespace std::chrono_literals;

namespace {

constexpr int retryPause = 2000; // milliseconds
constexpr auto longRetryPause = 5s;

std::string environment(const char *name, const char *otherwise = "")
{
    const char *const value = std::getenv(name);
    return value && *value ? value : otherwise;
}

/// What the scheduler says about the job on the command line.
struct Job
{
    int number;
    std::string title;
    int copies;
    std::string uuid; ///< "" when nobody would start it again
    const char *file; ///< null: standard input
};

std::string uuidIn(const char *words)
{
    cups_option_t *options = nullptr;
    const int count = cupsParseOptions(words, 0, &options);
    const char *const uuid = cupsGetOption("job-uuid", count, options);
    const std::string result = uuid ? uuid : "";
    cupsFreeOptions(count, options);
    return result;
}

Job jobIn(int argc, char **argv)
{
    Job job{std::atoi(argv[1]), argv[3], 1, uuidIn(argv[5]), nullptr};
    if (argc == 7) { // who writes to standard input has made the copies already
        job.copies = std::max(1, std::atoi(argv[4]));
        job.file = argv[6];
    }
    return job;
}

std::optional<Ticket> ticketOf(const Job &job)
{
    std::optional<Ticket> ticket =
        job.file ? Ticket::fromFile(job.file) : Ticket::fromStandardInput(environment("TMPDIR", "/tmp"));
    if (ticket)
        ticket->setCopies(job.copies);
    return ticket;
}

/// The scheduler takes no notice of a filter that was killed, and hands on what that had written. Where the
/// documents are sent as they are, the scheduler knows how long they are.
bool isWhole(const Ticket &ticket, const Job &job)
{
    const std::string type = environment("CONTENT_TYPE");
    const bool isSentAsItIs =
        type == "application/vnd.cups-raw" || type.starts_with("application/vnd.palvestrin.");
    return job.file || !isSentAsItIs || ticket.size() >= scheduler::leastSize(job.number);
}

/// One run of the backend for one job.
class Run
{
public:
    Run(Job itsJob, DeviceAddress itsAddress)
        : job(std::move(itsJob)), address(std::move(itsAddress)), folderPath(recordFolder()),
          folder(folderPath.empty() ? std::nullopt : OwnFolder::at(folderPath))
    {
        if (folder && !job.uuid.empty())
            record = std::make_unique<JobRecord>(*folder, job.uuid, identityOf(getppid()));
    }

    int print();

private:
    static std::string recordFolder()
    {
        const std::string cache = environment("CUPS_CACHEDIR");
        return cache.empty() ? "" : cache + "/palvestrin";
    }

    enum class Task {
        Print,
        PrintCopy, ///< a person wants it again
        Conclude,  ///< it needs no printing
        Hold,      ///< a person must look first
        HoldTwice, ///< the same, and the scheduler would start it twice
    };

    bool isRecordKept() const;
    Task task();
    Task taskOfReleased();
    Task taskAfterEnd();
    int retryLater(const std::string &why);
    int concludeUnreadable();
    int concludeTorn();
    int deliver(const Ticket &ticket, Interruptions &interrupted);
    int conclude(Delivery::Outcome outcome, const std::string &why);
    int concludeEarlier();
    int concludePrinted();
    int concludeUnconfirmed();
    int concludeNotPrinted(const std::string &why);
    int concludeUnknown(const std::string &why);
    int concludeStopped();
    int afterDeath();
    void lookAfterOthers() const;
    void handBack();
    Delivery::Beginning begin(const Interruptions &interrupted);
    void tellUnknown(const std::string &why);
    std::string markOfCopy() const;

    const Job job;
    const DeviceAddress address;
    const std::string folderPath; ///< of the records; "" when none are kept
    const std::optional<OwnFolder> folder;
    std::unique_ptr<JobRecord> record = std::make_unique<JobRecord>();
    Report report;
    SharedStage stage;
    const bool hasStandIn = !environment("CLASS").empty();
};

int Run::print()
{
    if (!isRecordKept())
        return retryLater(
            "the folder " + folderPath +
            " cannot be written, or others can change it. Make room on the disk, or give it to root "
            "alone.");
    const Task what = task();
    if (what == Task::Conclude)
        return concludeEarlier();
    if (what == Task::Hold)
        return concludeUnknown("printing it was interrupted");
    if (what == Task::HoldTwice)
        return concludeUnknown(
            "the print server was killed and lists it twice; restart it before you release the job");
    std::optional<Ticket> ticket = ticketOf(job);
    if (!ticket)
        return concludeUnreadable();
    if (!isWhole(*ticket, job))
        return concludeTorn();
    if (ticket->size() == 0) {
        report.warning(std::string(sentence::empty));
        record->set(JobRecord::State::Unconfirmed);
        return CUPS_BACKEND_OK;
    }
    if (what == Task::PrintCopy)
        ticket->markAsCopy();
    const int code = runGuarded([&](Interruptions &interrupted) { return deliver(*ticket, interrupted); },
                                [&] { return afterDeath(); });
    if (code == CUPS_BACKEND_HOLD && isStopPending()) // then the scheduler does not heed the code
        record->set(JobRecord::State::Sending);
    return code;
}

/// Without a record nothing may be sent of a job that can be started again.
bool Run::isRecordKept() const
{
    const bool isWanted = !folderPath.empty() && !job.uuid.empty();
    return !isWanted || (folder && record->isKept());
}

/// For what is the matter with the machine, before anything was sent: it is over by itself, or a person mends
/// it.
int Run::retryLater(const std::string &why)
{
    report.error("Not printed yet: " + why);
    blockStopSignals(); // ended by a signal, it would be taken for one that has printed
    std::this_thread::sleep_for(longRetryPause); // the scheduler starts it again at once
    return hasStandIn ? CUPS_BACKEND_FAILED : CUPS_BACKEND_RETRY_CURRENT;
}

/// What is on standard input is kept in a file of our own until it is printed.
int Run::concludeUnreadable()
{
    if (!job.file)
        return retryLater("there is no room to keep the job until it is printed. Make room on the disk.");
    report.error("Not printed: the data of the job cannot be read. Print it anew, and cancel this job.");
    return CUPS_BACKEND_HOLD;
}

int Run::concludeTorn()
{
    report.error(
        "Not printed: a part of the job is missing, because a filter of the print server was killed. "
        "Release the job.");
    return CUPS_BACKEND_HOLD;
}

/// What is to be done with a job that was started before.
Run::Task Run::task()
{
    using State = JobRecord::State;
    switch (record->state()) {
    case State::New: // it may have been cancelled before it was begun, and be wanted after all
        record->setEndBefore(scheduler::endOf(job.number).value_or(0));
        return Task::Print;
    case State::Sending:
        return Task::Hold;
    case State::Held: // a scheduler that died may have forgotten that it holds the job
        return record->isOfThisScheduler() ? taskOfReleased() : Task::Hold;
    case State::PrintedUntold:
    case State::UnconfirmedUntold:
        return Task::Conclude;
    case State::Printed:
    case State::Unconfirmed:
        break;
    }
    return taskAfterEnd();
}

Run::Task Run::taskOfReleased()
{
    const std::optional<time_t> end = scheduler::endOf(job.number);
    const std::optional<bool> isOnce = scheduler::hasOnce(job.number);
    if (!end || !isOnce)
        return Task::Hold;
    record->setEndBefore(*end);
    return *isOnce ? Task::PrintCopy : Task::HoldTwice;
}

/// Somebody wants a job anew whose end was noted; where it was not, the scheduler died before it could.
Run::Task Run::taskAfterEnd()
{
    const std::optional<time_t> end = scheduler::endOf(job.number);
    const std::optional<bool> isOnce = scheduler::hasOnce(job.number);
    if (!end || !isOnce)
        return Task::Hold;
    if (!*isOnce || *end == record->endBefore())
        return Task::Conclude;
    record->setEndBefore(*end);
    return Task::PrintCopy;
}

/// For a job that needs no printing.
int Run::concludeEarlier()
{
    report.info("It was sent before, and is not printed again.");
    const JobRecord::State state = record->state();
    const bool isPrinted = state == JobRecord::State::Printed || state == JobRecord::State::PrintedUntold;
    return isPrinted ? concludePrinted() : concludeUnconfirmed();
}

int Run::deliver(const Ticket &ticket, Interruptions &interrupted)
{
    // Somebody may have removed the job, guard and all.
    interrupted.goesOnAlone = [this] {
        return scheduler::hold(job.number) || stage.get() != Stage::NothingSent ||
               !scheduler::isOver(job.number);
    };
    const Delivery::Surroundings surroundings{report, folder ? &*folder : nullptr, interrupted,
                                              [&] { return begin(interrupted); }, hasStandIn};
    std::optional<Delivery> delivery(std::in_place, address, ticket, surroundings);
    const Delivery::Outcome outcome = delivery->run();
    const std::string why = delivery->why();
    delivery.reset(); // others have their turn
    const bool isUnknown = outcome == Delivery::Outcome::Unknown;
    if (isUnknown)
        lookAfterOthers(); // first: between the word that it is held and the end nothing shall happen
    const bool isStopped = outcome == Delivery::Outcome::Stopped || interrupted.isToStop();
    const int code =
        isStopped && outcome != Delivery::Outcome::Printed ? concludeStopped() : conclude(outcome, why);
    if (!isUnknown)
        lookAfterOthers();
    const bool isTriedAgain = code == CUPS_BACKEND_RETRY_CURRENT || code == CUPS_BACKEND_FAILED;
    // The scheduler starts it again at once, and what is the matter may last.
    interrupted.wait(-1, 0, isTriedAgain ? retryPause : 0);
    if (code == CUPS_BACKEND_HOLD && interrupted.isToStop()) // then the scheduler does not heed the code
        record->set(JobRecord::State::Sending);
    if (interrupted.isOrphan() && code != CUPS_BACKEND_HOLD)
        handBack();
    return code;
}

void Run::lookAfterOthers() const
{
    if (folder)
        saveAbandonedJobs(*folder);
}

/// A scheduler whose backend was killed takes the job for printed as soon as nobody holds its pipe. So
/// without its guard the backend has the job held at once, whatever happens to itself. When all is well it is
/// released: the scheduler starts the job again, and the record says how it ended.
void Run::handBack()
{
    if (record->state() == JobRecord::State::Printed)
        record->set(JobRecord::State::PrintedUntold);
    if (record->state() == JobRecord::State::Unconfirmed)
        record->set(JobRecord::State::UnconfirmedUntold);
    scheduler::release(job.number);
}

/// Without a guard nobody stops what a person has cancelled.
Delivery::Beginning Run::begin(const Interruptions &interrupted)
{
    if (interrupted.isOrphan() && scheduler::isOver(job.number))
        return Delivery::Beginning::Cancelled;
    if (!record->set(JobRecord::State::Sending))
        return Delivery::Beginning::Impossible;
    stage.set(Stage::Sending);
    return Delivery::Beginning::Made;
}

int Run::conclude(Delivery::Outcome outcome, const std::string &why)
{
    switch (outcome) {
    case Delivery::Outcome::Printed:
        return concludePrinted();
    case Delivery::Outcome::Unconfirmed:
        return concludeUnconfirmed();
    case Delivery::Outcome::NotPrinted:
        return concludeNotPrinted(why);
    case Delivery::Outcome::Unknown:
        return concludeUnknown(why);
    case Delivery::Outcome::Stopped:
        break;
    }
    return concludeStopped();
}

/// The scheduler stops the backend, and heeds no code: it may start the job again by itself, so the record
/// does not say that somebody was told. When somebody else stopped it, the code holds what may be on paper.
int Run::concludeStopped()
{
    if (stage.get() == Stage::NothingSent) {
        report.info("Stopped before anything was printed.");
        return CUPS_BACKEND_RETRY_CURRENT;
    }
    tellUnknown("it was stopped in the middle");
    return CUPS_BACKEND_HOLD;
}

int Run::concludePrinted()
{
    record->set(JobRecord::State::Printed);
    report.printed();
    report.info("Printed: the printer confirmed it.");
    stage.set(Stage::Finished);
    return CUPS_BACKEND_OK;
}

int Run::concludeUnconfirmed()
{
    record->set(JobRecord::State::Unconfirmed);
    report.warning(std::string(sentence::unconfirmed));
    stage.set(Stage::Finished);
    return CUPS_BACKEND_OK;
}

int Run::concludeNotPrinted(const std::string &why)
{
    report.warning("Not printed yet: " + why);
    return hasStandIn ? CUPS_BACKEND_FAILED : CUPS_BACKEND_RETRY_CURRENT;
}

/// A person decides.
int Run::concludeUnknown(const std::string &why)
{
    record->set(JobRecord::State::Held);
    tellUnknown(why);
    return CUPS_BACKEND_HOLD;
}

void Run::tellUnknown(const std::string &why)
{
    report.error(
        "It is unknown whether \"" + job.title + "\" was printed: " + why +
        ". Look for it at the printer. If it is there, cancel the job; if it is not, or not whole, release "
        "it: it is printed again, " +
        markOfCopy());
}

std::string Run::markOfCopy() const
{
    if (!job.file)
        return "with COPY on top where it is for a receipt printer.";
    const std::optional<Ticket> ticket = Ticket::fromFile(job.file);
    return ticket && ticket->canBeMarked() ? "with COPY on top." : "and nothing on it says so.";
}

int Run::afterDeath()
{
    switch (stage.get()) {
    case Stage::NothingSent:
        std::this_thread::sleep_for(1s); // what kills it may do so again
        return hasStandIn ? CUPS_BACKEND_FAILED : CUPS_BACKEND_RETRY_CURRENT;
    case Stage::Sending:
        return concludeUnknown("the backend was killed while it was printed");
    case Stage::Finished:
        break;
    }
    return CUPS_BACKEND_OK;
}

} // namespace

int runBackend(int argc, char **argv)
{
    if (argc == 1) {
        listDevices();
        return CUPS_BACKEND_OK;
    }
    if (argc != 6 && argc != 7) {
        fprintf(stderr, "Usage: %s job-id user title copies options [file]\n", argv[0]);
        return CUPS_BACKEND_FAILED;
    }
    endWithScheduler();
    std::signal(SIGPIPE, SIG_IGN);
    const char *const uri = cupsBackendDeviceURI(argv);
    std::string trouble;
    std::optional<DeviceAddress> address = deviceAddress(uri ? uri : "", trouble);
    if (!address) {
        Report().error("Not printed: the address of the printer is wrong: " + trouble + '.');
        return CUPS_BACKEND_STOP;
    }
    return Run(jobIn(argc, argv), *address).print();
}
