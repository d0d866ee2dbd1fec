#include "guard.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <new>
#include <poll.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/signalfd.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int diedWithScheduler = 1; // nobody is left to read it
constexpr int guardDied = SIGUSR1;
constexpr int dyingTime = 200; // milliseconds in which a scheduler is dead whose children are told so

int schedulerProcess = -1; // readable when it has died

bool isReadable(int descriptor, int milliseconds = 0)
{
    pollfd waiting{descriptor, POLLIN, 0};
    return poll(&waiting, 1, milliseconds) > 0;
}

void endWithDyingScheduler(int)
{
    if (schedulerProcess >= 0 && isReadable(schedulerProcess, dyingTime))
        _exit(diedWithScheduler);
}

sigset_t stopSignals()
{
    sigset_t signals;
    sigemptyset(&signals);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        sigaddset(&signals, signal);
    return signals;
}

int openProcess(pid_t process)
{
    return int(syscall(SYS_pidfd_open, process, 0));
}

/// The kernel tells the process when its guard dies; what may block then is interrupted. It has a process
/// group of its own, for the scheduler sends its signals to whole groups, and it shall outlive the guard.
void hearOfGuard()
{
    setpgid(0, 0);
    struct sigaction action
    {
    };
    action.sa_handler = endWithDyingScheduler;
    action.sa_flags = SA_RESTART;
    sigaction(guardDied, &action, nullptr);
    prctl(PR_SET_PDEATHSIG, guardDied);
}

/// Waits for the worker's end, and passes on what is to stop it.
int statusOf(pid_t worker, const sigset_t &signals)
{
    for (;;) {
        int status = 0;
        if (waitpid(worker, &status, WNOHANG) == worker)
            return status;
        const int signal = sigwaitinfo(&signals, nullptr);
        if (signal > 0 && signal != SIGCHLD)
            kill(worker, SIGTERM);
    }
}

} // namespace

/// The process that prints.
class Worker
{
public:
    [[noreturn]] static void run(int guard, const std::function<int(Interruptions &)> &work)
    {
        hearOfGuard();
        const sigset_t signals = stopSignals();
        Interruptions interruptions(signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK), guard,
                                    schedulerProcess);
        std::exit(work(interruptions));
    }
};

SharedStage::SharedStage()
{
    void *const memory =
        mmap(nullptr, sizeof *shared, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED)
        throw std::bad_alloc();
    shared = new (memory) std::atomic<Stage>(Stage::NothingSent);
}

SharedStage::~SharedStage()
{
    munmap(shared, sizeof *shared);
}

Interruptions::Woken Interruptions::wait(int descriptor, short events, int milliseconds)
{
    for (;;) {
        pollfd descriptors[] = {
            {descriptor, events, 0}, {stop, POLLIN, 0}, {scheduler, POLLIN, 0}, {guard, POLLIN, 0}};
        const int ready = poll(descriptors, 4, milliseconds);
        if (ready < 0 && errno == EINTR)
            continue;
        if (descriptors[2].revents != 0)
            _exit(diedWithScheduler);
        if (descriptors[3].revents != 0)
            loseGuard();
        if (descriptors[1].revents != 0 || isGivenUp)
            return Woken::ByStop;
        if (ready <= 0 || descriptors[0].revents != 0)
            return ready <= 0 ? Woken::ByTime : Woken::ByDescriptor;
    }
}

void Interruptions::loseGuard()
{
    endWithDyingScheduler(guardDied);
    guard = -1;
    isGivenUp = goesOnAlone && !goesOnAlone();
}

bool Interruptions::isToStop() const
{
    return isGivenUp || isReadable(stop);
}

void blockStopSignals()
{
    const sigset_t signals = stopSignals();
    sigprocmask(SIG_BLOCK, &signals, nullptr);
}

bool isStopPending()
{
    sigset_t pending;
    sigpending(&pending);
    const auto isThere = [&pending](int signal) { return sigismember(&pending, signal) == 1; };
    return isThere(SIGTERM) || isThere(SIGINT) || isThere(SIGHUP);
}

/// The kernel tells of no parent that died before it was asked to; but then nobody reads the messages any
/// more.
void endWithScheduler()
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    pollfd messages{STDERR_FILENO, 0, 0};
    if (poll(&messages, 1, 0) > 0 && (messages.revents & POLLERR) != 0)
        _exit(diedWithScheduler);
}

int runGuarded(const std::function<int(Interruptions &)> &work, const std::function<int()> &afterDeath)
{
    schedulerProcess = openProcess(getppid());
    const int guard = openProcess(getpid());
    sigset_t signals = stopSignals();
    sigaddset(&signals, SIGCHLD);
    sigprocmask(SIG_BLOCK, &signals, nullptr);
    const pid_t worker = fork();
    if (worker == 0)
        Worker::run(guard, work);
    if (worker < 0)
        return afterDeath();
    const int status = statusOf(worker, signals);
    return WIFEXITED(status) ? WEXITSTATUS(status) : afterDeath();
}
