// SPDX-License-Identifier: MIT
// How is a camera closed if its library may not return from a call?
#pragma once

#include "camera/session.h"

#include <QElapsedTimer>
#include <QThread>
#include <cstdint>
#include <memory>

/// How long to wait for the capture thread's call before the live mode is stopped during that call,
/// milliseconds. Some libraries return from a request for a frame only then.
constexpr int stopTimeout = 400;

/// Stops the live mode and closes the camera in short polls, so that the window's event loop can
/// run in between. Calls the library only while the capture thread is not in a call, with one
/// exception: after stopTimeout a separate thread stops the live mode anyway, since the capture
/// thread's call may be waiting for that. The camera is closed when both calls have returned. For
/// the thread that opened the camera.
class CameraClosing
{
public:
    enum class State {
        Idle,
        UnderWay,
        Closed,
        Refused, ///< CloseVELDIX failed: the camera is still open
        Hanging  ///< a call did not return in time: the camera is still open
    };

    /// @param shared must outlive this object
    explicit CameraClosing(CameraSession &shared) : session(shared) {}
    ~CameraClosing();

    /// Starts closing, unless it is already in progress.
    /// @param milliseconds total time to wait for calls to return
    void begin(int milliseconds);
    bool isUnderWay() const { return state == State::UnderWay; }
    /// Polls once, for at most `milliseconds`. The last poll returns the result.
    State poll(int milliseconds);
    /// Polls until there is a result.
    State finish();
    /// Whether the thread that stops the live mode has ended, or ends within `milliseconds`.
    bool stopEnds(int milliseconds);

private:
    void stopUnderTheCall();
    bool closeHandle();
    State end(State last);

    CameraSession &session;
    State state = State::Idle;
    int patience = 0;
    QElapsedTimer since;
    bool stopped = false; ///< the thread was started to stop the live mode
    std::unique_ptr<QThread> stopper;
};
