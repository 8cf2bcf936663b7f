// SPDX-License-Identifier: MIT
// Which camera is open, and who may use it now?
#pragma once

#include "core/locker.h"
#include "core/relaxed.h"

#include <QMutex>

/// The handle of the open camera and its lock; null if no camera is open. Only one thread
/// sets the handle, the GUI thread or the assistant's operator, and it may read it at any time. The
/// capture thread holds the lock during each of its calls, and that thread to stop and close. So no
/// call uses a closed handle, and closing waits for one fetch at most.
class CameraHandle
{
public:
    /// How long that thread waits for a call of the capture thread, milliseconds. Far longer
    /// than any frame takes, to distinguish a library that hangs from a slow one.
    static constexpr int sdkCallTimeout = 10000;

    /// Holds the lock for a scope. With a timeout, check whether the lock was acquired.
    class Hold
    {
    public:
        /// @param milliseconds timeout; negative = none
        explicit Hold(CameraHandle &held, int milliseconds = -1)
            : lock(held.mutex, milliseconds), handle(held.get())
        {
        }
        /// Whether the lock was acquired.
        explicit operator bool() const { return bool(lock); }
        void *get() const { return handle; }

    private:
        Locker lock;
        void *handle;
    };

    /// Without the lock: for the GUI thread, the only one that changes the handle.
    void *get() const noexcept { return handle; }
    void set(void *opened) noexcept { handle = opened; }

private:
    QMutex mutex;
    Relaxed<void *> handle;
};
