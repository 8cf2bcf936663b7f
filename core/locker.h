// SPDX-License-Identifier: MIT
// How is a QMutex held for a scope, and a thread's end waited for, so that the thread sanitizer
// sees it?
#pragma once

#include <QMutex>

#if defined(__SANITIZE_THREAD__)
extern "C" void __tsan_acquire(void *);
extern "C" void __tsan_release(void *);
#endif

/// Everything before the release of an address comes before what follows its acquisition. QMutex
/// and QThread do their work inside the toolkit's library, which is built without the sanitizer:
/// these tell it of the order that they make, and do nothing in any other build.
inline void noteAcquired([[maybe_unused]] void *address)
{
#if defined(__SANITIZE_THREAD__)
    __tsan_acquire(address);
#endif
}

inline void noteReleased([[maybe_unused]] void *address)
{
#if defined(__SANITIZE_THREAD__)
    __tsan_release(address);
#endif
}

/// Locks from construction to destruction; with a time given, if it can within that time.
class Locker
{
public:
    /// @param milliseconds negative = as long as it takes
    explicit Locker(QMutex &guarded, int milliseconds = -1)
        : mutex(guarded), locked(mutex.tryLock(milliseconds))
    {
        if (locked)
            noteAcquired(&mutex);
    }
    ~Locker()
    {
        if (!locked)
            return;
        noteReleased(&mutex);
        mutex.unlock();
    }
    Locker(const Locker &) = delete;
    Locker &operator=(const Locker &) = delete;
    explicit operator bool() const { return locked; }

private:
    QMutex &mutex;
    bool locked;
};
