// SPDX-License-Identifier: MIT
// How does a test create a window that shares its state with no other?
#pragma once

#include "camera/session.h"
#include "mainwindow/mainwindow.h"

/// First base class of a window, so that the session exists before the window and outlives it.
struct OwnSession {
    Session ownSession;
};

/// A window with a session of its own. Without Q_OBJECT: to Qt it is a MainWindow.
class SessionWindow : public OwnSession, public MainWindow
{
public:
    explicit SessionWindow(QWidget *parent = nullptr, std::optional<double> anglesAt = {})
        : MainWindow(ownSession, parent, anglesAt)
    {
    }
};
