// SPDX-License-Identifier: MIT
// How is a camera closed whose library may not return from a call?
#pragma once

#include <QElapsedTimer>
#include <QThread>
#include <cstdint>
#include <memory>

struct Session;

/// How long a call of the capture thread's is waited for before the live mode is stopped under it,
/// milliseconds: some libraries only return from the call for a frame then.
constexpr int stopPatience = 400;

/// Stops the live mode and closes the camera, one look after the other, so that the window's event
/// loop can run in between. Nothing is called but once the capture thread is out of its call; after
/// stopPatience the live mode is stopped all the same, by a thread of its own, since that call may
/// wait for the other. The camera is closed when both have returned. For the GUI thread.
class CameraClosing
{
public:
    enum class State {
        Idle,
        UnderWay,
        Closed,
        Refused, ///< CloseVELDIX failed: the camera is still open
        Hanging  ///< a call has not returned in time: the camera is still open
    };

    /// @param shared outlives the closing
    explicit CameraClosing(Session &shared) : session(shared) {}
    ~CameraClosing();

    /// Begins, unless it is under way. @param milliseconds how long a call is waited for in all
    void begin(int milliseconds);
    bool isUnderWay() const { return state == State::UnderWay; }
    /// Looks once, for that long at most. The last look gives what came of it.
    State look(int milliseconds);
    /// Looks until something has come of it.
    State finish();
    /// Whether the thread that stops the live mode has ended, or ends within that time.
    bool stopEnds(int milliseconds);

private:
    void stopUnderTheCall();
    bool closeHandle();
    State end(State last);

    Session &session;
    State state = State::Idle;
    int patience = 0;
    QElapsedTimer since;
    bool stopped = false; ///< the live mode, by the thread
    std::unique_ptr<QThread> stopper;
};
