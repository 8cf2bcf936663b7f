// SPDX-License-Identifier: MIT
// The capture loop: fetch a frame, measure the rate, convert, track stars, draw the marks, queue.
#include "camera/capturethread.h"

#include "camera/monitor.h"
#include "camera/overlay.h"
#include "camera/session.h"
#include "camera/veldix.h"
#include "core/locker.h"

#include <QtDebug>
#include <opencv2/imgproc.hpp>

namespace
{
/// Pause before the next request if no new frame was available.
constexpr unsigned long retryMicroseconds = 10000;

} // namespace

CaptureThread::CaptureThread(Session &shared, QObject *parent)
    : QThread(parent),
      session(shared),
      frameImage(std::make_unique<QImage>(int(frameWidthDefault), int(frameHeightDefault),
                                          QImage::Format_RGB888)),
      magnifierImage(std::make_unique<QImage>(cropSide, cropSide, QImage::Format_RGB888))
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

void CaptureThread::followStars()
{
    const ReferenceStars stars = trackReferenceStars(rawFrame, session.monitorPositions);
    cropAroundStarB(rawFrame, stars.a, stars.b, session.overlayFlags.monoStyle, matrices);
    magnifierImage = MatToQImage(&matrices.magnifierCrop);
    // Before the picture is queued: the window updates its read-outs when it arrives.
    updatePole(stars, session.refraction, session.alignmentPoints, session.monitorPositions);
    if (magnifierImage)
        session.magnifierQueue.append(*magnifierImage, stopRequested);
}

/// False if the fetched frame could not be shown.
bool CaptureThread::handleFrame()
{
    session.frameRate.frameCame(stopRequested);
    if (!acceptFrame())
        return false;
    if (rawFrame.channels() == 3)
        rawFrame.copyTo(matrices.colourFrame);
    else
        cv::cvtColor(rawFrame, matrices.colourFrame, cv::COLOR_GRAY2BGR);
    if (session.overlayFlags.monitorTracking)
        followStars();
    frameImage = MatToQImage(&matrices.colourFrame);
    if (!frameImage)
        return false;
    paintOverlay(*frameImage, currentMarks(session.overlayFlags, session.alignmentPoints,
                                           session.monitorPositions));
    session.frameQueue.append(*frameImage, stopRequested);
    return true;
}
