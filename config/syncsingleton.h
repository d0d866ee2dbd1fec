#pragma once

#include <QMutex>
#include <QMutexLocker>

#include <atomic>

/// The one process-wide instance of `T`, made on first use and deleted at exit.
///
/// Creation is double-checked: the pointer is read without the lock, and again under it. It is atomic
/// (acquire on read, release on creation), so a thread that sees the pointer sees the finished object behind
/// it. `T`'s constructor must not ask for the instance of `T` again: the mutex is not recursive.
template <typename T>
class SyncSingleton
{
public:
    /// The instance, made now if this is the first use. The singleton keeps ownership.
    static T *instance()
    {
        T *existing = instance_pointer.load(std::memory_order_acquire);
        if (!existing) {
            createInstance();
            existing = instance_pointer.load(std::memory_order_acquire);
        }
        return existing;
    }

    /// Makes the instance unless another thread already did.
    static void createInstance()
    {
        const QMutexLocker lock(&instance_mutex);
        if (instance_pointer.load(std::memory_order_relaxed))
            return;
        T *made = new T;
        instance_destroyer.pointer = made;
        instance_pointer.store(made, std::memory_order_release);
    }

private:
    template <typename U>
    struct Destroyer
    {
        U *pointer = nullptr;
        ~Destroyer() { delete pointer; }
    };

    inline static QMutex instance_mutex;
    inline static std::atomic<T *> instance_pointer = nullptr;
    inline static Destroyer<T> instance_destroyer;
};
