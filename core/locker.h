// SPDX-License-Identifier: MIT
// How is a QMutex locked for a scope, and a thread joined, so that the thread sanitizer sees it?
#pragma once

#include <QMutex>

#if defined(__SANITIZE_THREAD__)
extern "C" void __tsan_acquire(void *);
extern "C" void __tsan_release(void *);
#endif

/// Everything before the release of an address happens before everything after its acquisition.
/// QMutex and QThread synchronise inside Qt's library, which is built without the sanitizer. These
/// functions report that order to the sanitizer, and do nothing in other builds.
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

/// Holds the lock from construction to destruction; with a timeout, only if it was acquired in
/// time.
class Locker
{
public:
    /// @param milliseconds timeout; negative = none
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
