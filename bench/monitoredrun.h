// SPDX-License-Identifier: MIT
// How does the complete program enter monitor mode automatically?
#pragma once

#include "camera/session.h"
#include "mainwindow/mainwindow.h"
#include "tools/tour/knobs.h"

/// The window, connected to the virtual camera and monitoring; closed on destruction.
class MonitoredRun
{
public:
    /// @param zoomPercent 100, 75 or 50
    explicit MonitoredRun(int zoomPercent);
    ~MonitoredRun();

    /// True: a new frame on every call. False: the rate of a real camera, 30 per second.
    void setUnthrottled(bool unthrottled);
    /// Runs the event loop.
    void wait(double seconds) const;

    Session session;
    MainWindow window{session};

private:
    void typeInto(const char *lineEdit, const char *text);

    Knobs knobs;
};
