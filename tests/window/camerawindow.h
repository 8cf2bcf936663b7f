// SPDX-License-Identifier: MIT
// How does a test work the program's window with the recording camera behind it?
#pragma once

#include "tests/camera/recordingcamera.h"
#include "tests/support/patience.h"
#include "tests/support/sessionwindow.h"

#include <QMessageBox>
#include <QTimer>
#include <functional>

/// What a message box showed.
struct Box {
    QMessageBox::Icon icon;
    QString title;
    QString text;
    QList<QMessageBox::StandardButton> buttons;
    bool modal;
    bool onWindow; ///< its parent is a main window
};

bool operator==(const Box &a, const Box &b);
char *toString(const Box &box);

/// A modal box over the main window with an Ok button alone.
Box okBox(QMessageBox::Icon icon, const QString &title, const QString &text);

/// While it lives, notes every message box that comes up and answers it with its first button; any
/// other modal dialog is given to `onDialog`.
class BoxWatcher : public QObject
{
public:
    explicit BoxWatcher(std::function<void(QWidget *)> onDialog = {});
    const QList<Box> &boxes() const { return seen; }

private:
    void look();

    std::function<void(QWidget *)> dialogHandler;
    QList<Box> seen;
    QTimer timer;
};

/// A shown window that starts from the given settings file, or from none, with the recording
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
    /// Runs a slot that has no parameters.
    void call(const char *slot) const;
    /// Connects and waits until the camera has been told to begin.
    void connectCamera() const;
    /// Waits until a frame that was fetched after this call is shown.
    bool waitForNewFrame() const;
    /// Enters a step by the slot that leads to it: 2, 3, 5, 7, 9, 10, 11, 12 or 13.
    void enterStep(int step) const;

    std::unique_ptr<SessionWindow> window;
};

/// Where the settings file of the running test lies.
QString settingsPath();
