// SPDX-License-Identifier: MIT
// How does a test operate the program's window with the recording camera behind it?
#pragma once

#include "tests/camera/recordingcamera.h"
#include "tests/support/boxwatcher.h"
#include "tests/support/patience.h"
#include "tests/support/sessionwindow.h"

#include <functional>

/// A shown window that starts with the given settings file, or without one, with the recording
/// camera reset and a session of its own.
class CameraWindow
{
public:
    /// @param settings the text of the settings file; empty = there is none
    /// @param beforeStart tells the reset camera library how to answer
    explicit CameraWindow(const QByteArray &settings = QByteArray(),
                          const std::function<void()> &beforeStart = {});
    ~CameraWindow();

    Session &session() const { return window->ownSession; }

    template <typename T> T &child(const char *name) const
    {
        T *const found = window->findChild<T *>(name);
        if (!found)
            qFatal("there is no %s", name);
        return *found;
    }

    void trigger(const char *action) const;
    /// Calls a slot without parameters.
    void call(const char *slot) const;
    /// Connects and waits until the camera was told to start.
    void connectCamera() const;
    /// Waits until a frame that was fetched after this call is shown.
    bool waitForNewFrame() const;
    /// Enters a step by the slot that leads to it: 2, 3, 5, 7, 9, 10, 11, 12 or 13.
    void enterStep(int step) const;

    std::unique_ptr<SessionWindow> window;
};

/// The path of the running test's settings file.
QString settingsPath();
