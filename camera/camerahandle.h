// SPDX-License-Identifier: MIT
// Which camera is open, and who may use it now?
#pragma once

#include "core/locker.h"
#include "core/relaxed.h"

#include <QMutex>

/// The open camera's handle with its lock; null when none is open. The GUI thread alone sets it,
/// and may use it at any time. The capture thread holds it for each of its calls, and the GUI
/// thread holds it to stop and close: so no call meets a closed handle, and closing waits for one
/// fetch at most.
class CameraHandle
{
public:
    /// How long the GUI thread waits for a call of the capture thread, milliseconds: far longer
    /// than any frame takes, so that a library that does not return is told from a slow one.
    static constexpr int sdkCallTimeout = 10000;

    /// Keeps every other holder off for a scope; with a time given, if that can be had within it.
    class Hold
    {
    public:
        /// @param milliseconds negative = as long as it takes
        explicit Hold(CameraHandle &held, int milliseconds = -1)
            : lock(held.mutex, milliseconds), handle(held.get())
        {
        }
        /// Whether the handle is held.
        explicit operator bool() const { return bool(lock); }
        void *get() const { return handle; }

    private:
        Locker lock;
        void *handle;
    };

    /// Without the lock: for the GUI thread, which alone changes it.
    void *get() const noexcept { return handle; }
    void set(void *opened) noexcept { handle = opened; }

private:
    QMutex mutex;
    Relaxed<void *> handle;
};
