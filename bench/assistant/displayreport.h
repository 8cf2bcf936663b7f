// SPDX-License-Identifier: MIT
// How long does a frame take to become a painted number, and what does that cost?
#pragma once

#include <QApplication>
#include <QElapsedTimer>
#include <functional>

/// Reports each painted update of a window, once its label of the total error is in it.
class PaintClock : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override;

    std::function<void()> painted; ///< called after the update that painted the label

private:
    bool labelPainted = false;
};

/// Turns the bolts to and fro and prints the time from the capture loop's handing over a frame to
/// the end of the paint that shows its number, and the processor time of the process' threads.
/// @param seconds of measurement, after the axis has been measured
void reportDisplay(PaintClock &application, double seconds);
