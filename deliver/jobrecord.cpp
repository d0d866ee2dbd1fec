#include "jobrecord.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <iterator>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct StateWord
{
    JobRecord::State state;
    std::string_view word;
    time_t keptFor; ///< seconds
};

constexpr time_t hour = 60L * 60; // seconds
constexpr time_t day = 24 * hour;

constexpr StateWord stateWords[] = {
    {JobRecord::State::New, "new", 60 * day},
    {JobRecord::State::Sending, "sending", 60 * day},
    {JobRecord::State::Held, "held", 60 * day},
    {JobRecord::State::Printed, "printed", 2 * day}, // the server keeps the files of a job for a day
    {JobRecord::State::Unconfirmed, "unconfirmed", 2 * day},
    {JobRecord::State::PrintedUntold, "printed-untold", 60 * day},
    {JobRecord::State::UnconfirmedUntold, "unconfirmed-untold", 60 * day},
};

constexpr std::size_t recordLength = 160; // one sector of any disk: it is written whole or not at all
constexpr std::string_view ending = ".job";

const StateWord &wordOf(JobRecord::State state)
{
    return *std::ranges::find(stateWords, state, &StateWord::state);
}

/// What was torn while it was written says that something was about to go out.
const StateWord &wordIn(std::string_view content)
{
    const std::string_view word = content.substr(0, content.find(' '));
    if (word.empty())
        return wordOf(JobRecord::State::New);
    const auto *found = std::ranges::find(stateWords, word, &StateWord::word);
    return found == std::end(stateWords) ? wordOf(JobRecord::State::Sending) : *found;
}

/// The whole record, written by a backend of that scheduler.
std::string recordText(JobRecord::State state, time_t endBefore, const std::string &scheduler)
{
    std::string text(wordOf(state).word);
    text += ' ' + std::to_string(endBefore) + ' ' + scheduler + ' ';
    text.resize(recordLength - 1, ' ');
    return text + '\n';
}

bool isFinished(JobRecord::State state)
{
    using State = JobRecord::State;
    return state != State::New && state != State::Sending && state != State::Held;
}

int openLocked(const OwnFolder &folder, const std::string &name)
{
    const int descriptor = folder.open(name, O_RDWR | O_CREAT);
    while (descriptor >= 0 && flock(descriptor, LOCK_EX) != 0) {
        if (errno == EINTR)
            continue;
        close(descriptor);
        return -1;
    }
    return descriptor;
}

/// Whether the file that was opened is still the one of that name: it may have been removed in between.
bool isStillThere(int descriptor, const OwnFolder &folder, const std::string &name)
{
    struct stat opened;
    const std::optional<struct stat> named = folder.status(name);
    return named && fstat(descriptor, &opened) == 0 && opened.st_ino == named->st_ino;
}

/// The name of a record: letters, digits and dashes, whatever the job calls itself.
std::string fileName(std::string_view uuid)
{
    std::string name(uuid.substr(0, 100));
    std::ranges::replace_if(
        name, [](unsigned char c) { return !isalnum(c) && c != '-'; }, '_');
    return name + std::string(ending);
}

void removeIfOld(const OwnFolder &folder, const std::string &name)
{
    const int descriptor = folder.open(name, O_RDWR);
    if (descriptor < 0)
        return;
    struct stat file;
    const bool isFree = flock(descriptor, LOCK_EX | LOCK_NB) == 0 && fstat(descriptor, &file) == 0;
    if (isFree && time(nullptr) - file.st_mtime > wordIn(contentOf(descriptor)).keptFor)
        folder.remove(name);
    close(descriptor);
}

/// A file that is as old as the folder's oldest record may be.
constexpr const char *ageFile = "since";

/// Makes the file that tells the folder's age.
bool keepAge(const OwnFolder &folder)
{
    const int descriptor = folder.open(ageFile, O_RDONLY | O_CREAT);
    if (descriptor >= 0)
        close(descriptor);
    return descriptor >= 0;
}

/// Notes that somebody looks for old records now. False when somebody has within the hour: a shop has
/// thousands of them.
bool startSweep(const OwnFolder &folder)
{
    constexpr const char *sweepFile = "swept";
    const std::optional<struct stat> last = folder.status(sweepFile);
    if (last && std::abs(time(nullptr) - last->st_mtime) < hour)
        return false;
    const int descriptor = folder.open(sweepFile, O_WRONLY | O_CREAT);
    if (descriptor < 0)
        return false;
    futimens(descriptor, nullptr); // now
    close(descriptor);
    return true;
}

} // namespace

JobRecord::JobRecord(const OwnFolder &folder, std::string_view uuid, std::string thisScheduler)
    : isSound(keepAge(folder)), scheduler(std::move(thisScheduler))
{
    if (!isSound)
        return;
    const std::string name = fileName(uuid);
    do {
        if (descriptor >= 0)
            close(descriptor);
        descriptor = openLocked(folder, name);
    } while (descriptor >= 0 && !isStillThere(descriptor, folder, name));
    isSound = descriptor >= 0 && folder.sync();
    if (isSound)
        read();
}

JobRecord::~JobRecord()
{
    if (descriptor >= 0)
        close(descriptor);
}

void JobRecord::read()
{
    const std::string content = contentOf(descriptor);
    known = wordIn(content).state;
    ofThisScheduler = content.find(' ' + scheduler + ' ') != std::string::npos;
    const std::size_t end = content.find(' ');
    knownEnd = end == std::string::npos ? 0 : std::atoll(content.c_str() + end);
}

bool JobRecord::set(State state)
{
    if (descriptor >= 0 && !rewriteDurably(descriptor, recordText(state, knownEnd, scheduler)))
        return false;
    known = state;
    ofThisScheduler = true;
    return isSound;
}

std::string identityOf(pid_t process)
{
    std::string boot = contentOf("/proc/sys/kernel/random/boot_id");
    boot.resize(boot.find_last_not_of('\n') + 1);
    const std::string status = contentOf("/proc/" + std::to_string(process) + "/stat");
    // The time at which it began is the 20th word behind the name, which is in brackets and may hold
    // anything.
    std::size_t place = status.rfind(')');
    for (int word = 0; word < 20 && place != std::string::npos; ++word)
        place = status.find(' ', place + 1);
    const std::string began =
        place == std::string::npos ? "" : status.substr(place + 1, status.find(' ', place + 1) - place - 1);
    return boot + '/' + std::to_string(process) + '/' + began;
}

void settleFreeRecord(const OwnFolder &folder, std::string_view uuid, bool evenWithoutRecord,
                      const std::function<std::optional<bool>()> &isOurs, const std::function<void()> &doubt)
{
    const std::string name = fileName(uuid);
    const int descriptor = folder.open(name, evenWithoutRecord ? O_RDWR | O_CREAT : O_RDWR);
    if (descriptor < 0)
        return;
    const bool isFree = flock(descriptor, LOCK_EX | LOCK_NB) == 0 && isStillThere(descriptor, folder, name);
    const bool isOpen = isFree && !isFinished(wordIn(contentOf(descriptor)).state);
    if (const std::optional<bool> isDoubtful = isOpen ? isOurs() : std::nullopt) {
        const JobRecord::State state =
            *isDoubtful ? JobRecord::State::Sending : JobRecord::State::Unconfirmed;
        if (rewriteDurably(descriptor, recordText(state, 0, {})) && *isDoubtful)
            doubt();
    }
    close(descriptor);
}

time_t recordsKeptSince(const OwnFolder &folder)
{
    const time_t now = time(nullptr);
    const int descriptor = folder.open(ageFile, O_RDONLY);
    struct stat file;
    const bool isKnown = descriptor >= 0 && fstat(descriptor, &file) == 0;
    if (isKnown && file.st_mtime > now) // the clock was wrong
        futimens(descriptor, nullptr);
    if (descriptor >= 0)
        close(descriptor);
    return isKnown ? std::min(file.st_mtime, now) : now;
}

void removeOldRecords(const OwnFolder &folder)
{
    if (!startSweep(folder))
        return;
    folder.list([&folder](const std::string &name) {
        if (name.ends_with(ending))
            removeIfOld(folder, name);
    });
}
