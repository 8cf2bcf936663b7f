// SPDX-License-Identifier: MIT
// The capture loop: fetch a frame, measure the rate, hand it on.
#include "camera/capturethread.h"

#include "camera/frameconsumer.h"
#include "camera/frames.h"
#include "camera/session.h"
#include "camera/veldix.h"
#include "core/locker.h"

#include <QtDebug>

namespace
{
/// Pause before the next request if no new frame was available.
constexpr unsigned long retryMicroseconds = 10000;

} // namespace

CaptureThread::CaptureThread(CameraSession &shared, FrameConsumer &frameConsumer, QObject *parent)
    : QThread(parent), session(shared), consumer(frameConsumer)
{
}

CaptureThread::~CaptureThread()
{
    stopCapture();
    waitForEnd();
}

void CaptureThread::startCapture()
{
    waitForEnd(); // an earlier loop, if any, is in its last pass
    stopRequested = false;
    start(QThread::InheritPriority);
}

bool CaptureThread::waitForEnd(unsigned long milliseconds)
{
    if (!wait(milliseconds))
        return false;
    noteAcquired(this);
    return true;
}

void CaptureThread::stopCapture()
{
    stopRequested = true;
}

void CaptureThread::run()
{
    qDebug("CaptureThread start...");
    refused.reset();
    if (session.camera.cameraConnected && beginLive()) {
        session.frameRate.begin();
        while (!stopRequested) {
            const Fetch fetch = fetchFrame();
            if (fetch == Fetch::Ended)
                break;
            if (fetch != Fetch::NewFrame || !handleFrame())
                QThread::usleep(retryMicroseconds);
        }
    }
    qDebug("CaptureThread done");
    noteReleased(this);
}

bool CaptureThread::beginLive()
{
    const CameraHandle::Hold camera(session.handle);
    if (stopRequested || !camera.get())
        return false;
    session.camera.liveMode = false;
    if (BeginVELDIXLive(camera.get()) != 0) {
        qCritical("BeginVELDIXLive failure");
        return false;
    }
    session.camera.liveMode = true;
    return true;
}

CaptureThread::Fetch CaptureThread::fetchFrame()
{
    const CameraHandle::Hold camera(session.handle);
    if (stopRequested || !camera.get())
        return Fetch::Ended;
    const CameraState &known = session.camera;
    fetched = {known.frameWidth, known.frameHeight, known.frameBpp, known.frameChannels};
    return GetVELDIXLiveFrame(camera.get(), &fetched.width, &fetched.height, &fetched.bpp,
                              &fetched.channels, session.latestFrame.fetchBuffer()) == 0
               ? Fetch::NewFrame
               : Fetch::NoFrameYet;
}

/// Logs why the fetched frame cannot be shown. Once per format, since frames may arrive a hundred
/// times a second.
void CaptureThread::refuseFrame()
{
    if (refused == fetched)
        return;
    refused = fetched;
    if (!fitsBuffer(fetched)) {
        qCritical("frame of %u x %u pixels with %u channels cannot be shown", fetched.width,
                  fetched.height, fetched.channels);
        return;
    }
    const cv::Mat frame = session.latestFrame.fetched(fetched);
    MatToQImage(&frame);
}

/// Makes the fetched buffer the latest frame; false if it cannot be shown.
bool CaptureThread::acceptFrame()
{
    if (!isUsable(fetched)) {
        refuseFrame();
        return false;
    }
    CameraState &known = session.camera;
    known.frameWidth = fetched.width;
    known.frameHeight = fetched.height;
    known.frameBpp = fetched.bpp;
    known.frameChannels = fetched.channels;
    rawFrame = session.latestFrame.acceptFetched(fetched);
    return true;
}

/// False if the fetched frame could not be used.
bool CaptureThread::handleFrame()
{
    session.frameRate.frameCame(stopRequested);
    return acceptFrame() && consumer.handle(rawFrame, stopRequested);
}
