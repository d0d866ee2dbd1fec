#pragma once

#include <QMutex>
#include <QMutexLocker>

#include <atomic>

/// The one process-wide instance of `T`, made on first use and deleted at exit.
///
/// Creation is double-checked: the pointer is read without the lock, and again under it. It is atomic
/// (acquire on read, release on creation), so a thread that sees the pointer sees the finished object behind
/// it. `T`'s constructor must not ask for the instance of `T` again: the mutex is not recursive.
///
/// A caller reads `instance_pointer`, calls `createInstance()` if it is null, and then uses it:
///
///     if (!SyncSingleton<PVConfiguration>::instance_pointer)
///         SyncSingleton<PVConfiguration>::createInstance();
///     SyncSingleton<PVConfiguration>::instance_pointer->getStrValue(key);
///
/// `instance()` is the same in one word. The singleton keeps ownership.
template <typename T>
class SyncSingleton
{
public:
    /// To its readers a plain pointer, safe in any thread.
    struct Pointer : std::atomic<T *>
    {
        T *operator->() const { return this->load(std::memory_order_acquire); }
    };

    /// Null until the instance is made, then never changed. Only `createInstance()` sets it.
    inline static Pointer instance_pointer;

    /// The instance, made now if this is the first use.
    static T *instance()
    {
        if (!instance_pointer.load(std::memory_order_acquire))
            createInstance();
        return instance_pointer.load(std::memory_order_acquire);
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
    inline static Destroyer<T> instance_destroyer;
};
