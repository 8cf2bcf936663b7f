// SPDX-License-Identifier: MIT
// What happens when the process is asked to end by kill, by Ctrl+C or by the end of the session?
#pragma once

#include <QObject>
#include <functional>
#include <memory>

class EndWatch;
class QWidget;

/// While this object exists, SIGTERM, SIGINT and SIGHUP close a window from the event loop, like
/// its close button. Signals that are ignored already stay ignored. Only one object may exist at a
/// time; after it the signals end the process at once, as by default.
class TerminationSignals : public QObject
{
public:
    /// Closes `window`, however long that takes.
    explicit TerminationSignals(QWidget &window);
    /// Can be made before the window. The process ends within five seconds after a signal, whatever
    /// the window's thread does.
    /// @param lastSave see EndWatch
    explicit TerminationSignals(std::function<void()> lastSave);
    ~TerminationSignals() override;

    /// From now on a signal closes `window`; one that came before does so as soon as there is an
    /// event loop.
    /// @param hurry is called before that
    void closeWindow(QWidget &window, const std::function<void()> &hurry = {});

private:
    void begin();

    std::unique_ptr<EndWatch> watch;
    int readEnd = -1; ///< of the pipe that the signal handler writes to; -1 = none
};
