// SPDX-License-Identifier: MIT
// What happens when the process is asked to end: by kill, by Ctrl+C, by the end of the session?
#pragma once

#include <QObject>

class QWidget;

/// While it lives, SIGTERM, SIGINT and SIGHUP, if they are not ignored already, close `window` as
/// its close button does, from the event loop.
/// One at a time; afterwards the signals end the process at once, as they do by default.
class TerminationSignals : public QObject
{
public:
    explicit TerminationSignals(QWidget &window);
    ~TerminationSignals() override;

private:
    int readEnd = -1; ///< of the pipe that the signal handler writes to; -1 = there is none
};
