// SPDX-License-Identifier: MIT
// What happens when the process is asked to end by kill, by Ctrl+C or by the end of the session?
#pragma once

#include <QObject>

class QWidget;

/// While this object exists, SIGTERM, SIGINT and SIGHUP close `window` from the event loop, like
/// its close button. Signals that are ignored already stay ignored. Only one object may exist at a
/// time; after it the signals end the process at once, as by default.
class TerminationSignals : public QObject
{
public:
    explicit TerminationSignals(QWidget &window);
    ~TerminationSignals() override;

private:
    int readEnd = -1; ///< of the pipe that the signal handler writes to; -1 = none
};
