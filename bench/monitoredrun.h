// SPDX-License-Identifier: MIT
// How does the whole program get into monitor mode by itself?
#pragma once

#include "camera/session.h"
#include "mainwindow/mainwindow.h"
#include "tools/tour/knobs.h"

/// The window, connected to the virtual camera and monitoring; closed at the end.
class MonitoredRun
{
public:
    /// @param zoomPercent 100, 75 or 50
    explicit MonitoredRun(int zoomPercent);
    ~MonitoredRun();

    /// A new frame at every call, or the rate of a real camera: 30 a second.
    void setUnthrottled(bool unthrottled);
    /// Lets the window work.
    void wait(double seconds) const;

    Session session;
    MainWindow window{session};

private:
    void typeInto(const char *lineEdit, const char *text);

    Knobs knobs;
};
