// SPDX-License-Identifier: MIT
// Waits for the capture thread's call to return, stops the live mode and closes the camera.
#include "camera/cameraclosing.h"

#include "camera/session.h"
#include "camera/veldix.h"
#include "core/locker.h"

#include <QtDebug>
#include <algorithm>

namespace
{
constexpr int longestPoll = 20; ///< longest wait of one poll, milliseconds

/// Calls StopVELDIXLive in a thread of its own.
class Stopper : public QThread
{
public:
    explicit Stopper(void *cameraToStop) : camera(cameraToStop) {}

protected:
    void run() override
    {
        if (StopVELDIXLive(camera) == 0)
            qDebug("StopVELDIXLive");
        noteReleased(this);
    }

private:
    void *const camera;
};
} // namespace

CameraClosing::~CameraClosing()
{
    if (stopper)
        stopper->wait();
}

void CameraClosing::begin(int milliseconds)
{
    if (isUnderWay())
        return;
    state = State::UnderWay;
    patience = milliseconds;
    stopped = false;
    since.start();
}

CameraClosing::State CameraClosing::end(State last)
{
    state = State::Idle;
    return last;
}

void CameraClosing::stopUnderTheCall()
{
    stopper = std::make_unique<Stopper>(session.handle.get());
    stopped = true;
    stopper->start();
}

bool CameraClosing::closeHandle()
{
    void *const handle = session.handle.get();
    if (!stopped && StopVELDIXLive(handle) == 0)
        qDebug("StopVELDIXLive");
    if (CloseVELDIX(handle) != 0)
        return false;
    qDebug("CloseVELDIX");
    session.handle.set(nullptr);
    session.camera.cameraConnected = false;
    return true;
}

CameraClosing::State CameraClosing::poll(int milliseconds)
{
    if (!isUnderWay())
        return state;
    {
        const CameraHandle::Hold camera(session.handle, milliseconds);
        if (camera && stopEnds(0))
            return end(closeHandle() ? State::Closed : State::Refused);
    }
    if (since.elapsed() >= patience) {
        qCritical("the camera is not closed: its library does not return from a call");
        return end(State::Hanging);
    }
    // A live mode that is still starting is not stopped: it would run on afterwards.
    if (!stopper && session.camera.liveMode && since.elapsed() >= stopTimeout)
        stopUnderTheCall();
    return state;
}

CameraClosing::State CameraClosing::finish()
{
    State last = poll(std::min(patience, longestPoll));
    while (isUnderWay()) {
        QThread::msleep(1);
        last = poll(longestPoll);
    }
    return last;
}

bool CameraClosing::stopEnds(int milliseconds)
{
    if (!stopper)
        return true;
    if (!stopper->wait(static_cast<unsigned long>(std::max(milliseconds, 0))))
        return false;
    noteAcquired(stopper.get());
    stopper.reset();
    return true;
}
