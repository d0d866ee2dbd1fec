#pragma once

#include <atomic>
#include <functional>

/// How far a job is, in memory that the two processes of the backend share.
enum class Stage { NothingSent, Sending, Finished };

class SharedStage
{
public:
    SharedStage();
    ~SharedStage();
    SharedStage(const SharedStage &) = delete;
    SharedStage &operator=(const SharedStage &) = delete;

    void set(Stage stage) { shared->store(stage); }
    Stage get() const { return shared->load(); }

private:
    std::atomic<Stage> *shared;
};

/// What may interrupt the process that prints, while it waits for something else.
class Interruptions
{
public:
    /// Waits until `descriptor` has one of the `events`, or for `milliseconds`. Without a descriptor it is
    /// -1. Ends the process when the scheduler is gone.
    enum class Woken { ByDescriptor, ByTime, ByStop };
    Woken wait(int descriptor, short events, int milliseconds);

    /// Whether a signal to stop waits, or the work has been given up.
    bool isToStop() const;
    /// Whether the guard is gone, while the scheduler is not.
    bool isOrphan() const { return guard < 0; }
    /// Called once, when the guard has gone. Says whether the work goes on without it.
    std::function<bool()> goesOnAlone;

private:
    friend class Worker;
    Interruptions(int stopSignals, int guardProcess, int schedulerProcess)
        : stop(stopSignals), guard(guardProcess), scheduler(schedulerProcess)
    {
    }
    void loseGuard();

    bool isGivenUp = false;
    const int stop;      ///< readable when a signal to stop has come
    int guard;           ///< of the process, readable when it has died; -1 when that is known
    const int scheduler; ///< the same
};

/// From now on signals to stop wait.
void blockStopSignals();
/// Whether one of them does.
bool isStopPending();

/// Has this process end with the scheduler that started it; at once, when that is gone already.
void endWithScheduler();

/// Runs `work` in a process of its own, and ends with its exit code; what `afterDeath` says when a signal
/// killed it. A signal to stop is passed on. Both processes end with the one that started this one.
int runGuarded(const std::function<int(Interruptions &)> &work, const std::function<int()> &afterDeath);
