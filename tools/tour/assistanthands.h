// SPDX-License-Identifier: MIT
// A person's hands on the assistant's window and on the virtual mount: they know what the window
// shows, and nothing else.
#pragma once

#include "tools/tour/knobs.h"

#include <QString>
#include <functional>
#include <optional>

class QWidget;

class AssistantHands
{
public:
    struct Options {
        int pauseMilliseconds = 0;   ///< after every action, for a viewer
        double axisStep = 4.0;       ///< degrees of the RA axis at a time
        double goalArcseconds = 8.0; ///< the bolts are turned until the window shows less
        int parts = 1;               ///< of each turn of the bolts
    };

    AssistantHands(QWidget &window, Knobs &knobs, const Options &options);

    std::function<void(const QString &)> announce; ///< what is done now
    std::function<void(const QString &)> arrived;  ///< a step's name, for its picture

    // Each throws std::runtime_error with what the window says if it does not come to its end.
    void connectCamera();  ///< until the sky is recognised
    void turnAxis();       ///< until the window asks for the bolts
    void turnBolts();      ///< by the two numbers, until the total error is below the goal
    void showLargeView();  ///< and back
    void showOtherPages(); ///< settings and report, and back
    void click(const QString &button);
    void enter(const QString &field, double number); ///< by keys, with Return

    /// What a label shows; its property `arcseconds` or `sigma`.
    QString text(const QString &label) const;
    std::optional<double> number(const QString &label, const char *property = "arcseconds") const;

private:
    void dismissHint();
    void pause() const;
    void say(const QString &what) const;
    void arrive(const QString &name) const;
    /// Waits for what the window shows. @param what for the exception
    void waitFor(const std::function<bool()> &isThere, int milliseconds, const char *what) const;
    void turnBoltsBy(double altitude, double azimuth);

    QWidget &window;
    Knobs &knobs;
    Options options;
};
