// SPDX-License-Identifier: MIT
// The capture loop: fetch, measure, convert, follow, mark, queue.
#include "camera/capturethread.h"

#include "camera/camerastate.h"
#include "camera/frames.h"
#include "camera/locker.h"
#include "camera/monitor.h"
#include "camera/overlay.h"
#include "camera/sharedstate.h"

#include <QDateTime>
#include <QtDebug>
#include <opencv2/imgproc.hpp>

namespace
{
/// Pause before the camera is asked again for a frame that was not there yet.
constexpr unsigned long retryMicroseconds = 10000;

std::int32_t now()
{
    return cutTo32Bits(QDateTime::currentMSecsSinceEpoch());
}

/// Whether the announced frame lies whole in its buffer.
bool fitsBuffer(const FrameFormat &format)
{
    return format.channels >= 1 && format.channels <= 4 &&
           std::uint64_t(format.width) * format.height <= frameBufferSize / format.channels;
}

/// Whether a picture can be made of the announced frame.
bool isUsable(const FrameFormat &format)
{
    return format.width > 0 && format.height > 0 &&
           (format.channels == 1 || format.channels == 3) && fitsBuffer(format);
}

/// The fetched pixels as a matrix; empty without any. \param format one that fits the buffer
cv::Mat matrixOver(FrameBuffer &buffer, const FrameFormat &format)
{
    if (format.width == 0 || format.height == 0)
        return cv::Mat();
    return cv::Mat(int(format.height), int(format.width), CV_8UC(int(format.channels)),
                   buffer.data());
}
} // namespace

CaptureThread::CaptureThread(QObject *parent)
    : QThread(parent),
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
    waitForEnd(); // a loop that was asked to stop is at most in its last pass
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
    if (cameraState.cameraConnected && beginLive()) {
        {
            const Locker lock(fpsMutex);
            cameraState.lastFrameTime = now();
        }
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
    const Locker lock(handleMutex);
    void *const handle = cameraHandle;
    if (stopRequested || !handle)
        return false;
    cameraState.liveMode = false;
    if (BeginVELDIXLive(handle) != 0) {
        qCritical("BeginVELDIXLive failure");
        return false;
    }
    cameraState.liveMode = true;
    return true;
}

CaptureThread::Fetch CaptureThread::fetchFrame()
{
    const Locker lock(handleMutex);
    void *const handle = cameraHandle;
    if (stopRequested || !handle)
        return Fetch::Ended;
    fetched = {cameraState.frameWidth, cameraState.frameHeight, cameraState.frameBpp,
               cameraState.frameChannels};
    return GetVELDIXLiveFrame(handle, &fetched.width, &fetched.height, &fetched.bpp,
                              &fetched.channels, cameraState.frameBuffer->data()) == 0
               ? Fetch::NewFrame
               : Fetch::NoFrameYet;
}

void CaptureThread::measureRate()
{
    const Locker lock(fpsMutex);
    if (stopRequested) // looked at under the lock: a rate that was cleared after the stop stays so
        return;
    cameraState.thisFrameTime = now();
    const FrameRate rate =
        frameRate(elapsedBetween(cameraState.lastFrameTime, cameraState.thisFrameTime));
    cameraState.fpsWhole = rate.whole;
    cameraState.fpsTenths = rate.tenths;
    cameraState.lastFrameTime = now();
}

/// Tells in the log why no picture can be made of the fetched frame: once for a format, since they
/// may come a hundred times a second.
void CaptureThread::refuseFrame()
{
    if (refused == fetched)
        return;
    refused = fetched;
    if (!fitsBuffer(fetched)) {
        qCritical("frame of %u x %u pixels with %u channels can not be shown", fetched.width,
                  fetched.height, fetched.channels);
        return;
    }
    const cv::Mat frame = matrixOver(*cameraState.frameBuffer, fetched);
    MatToQImage(&frame);
}

/// Makes the fetched buffer the latest frame; false if no picture can be made of it.
bool CaptureThread::takeRawFrame()
{
    if (!isUsable(fetched)) {
        refuseFrame();
        return false;
    }
    cameraState.frameWidth = fetched.width;
    cameraState.frameHeight = fetched.height;
    cameraState.frameBpp = fetched.bpp;
    cameraState.frameChannels = fetched.channels;
    const Locker lock(rawFrameMutex);
    cameraState.frameBuffer.swap(cameraState.latestBuffer);
    frameMatrices.rawFrame = matrixOver(*cameraState.latestBuffer, fetched);
    return true;
}

void CaptureThread::followStars()
{
    const ReferenceStars stars = trackReferenceStars(frameMatrices.rawFrame);
    cropAroundStarB(frameMatrices.rawFrame, stars.a, stars.b, overlayFlags.monoStyle,
                    frameMatrices);
    magnifierImage = MatToQImage(&frameMatrices.magnifierCrop);
    updatePole(stars); // the read-outs are taken when the enlarged picture comes
    if (magnifierImage)
        enqueue(magnifierQueue, magnifierMutex, *magnifierImage, stopRequested);
}

/// False if no picture could be made of the fetched frame.
bool CaptureThread::handleFrame()
{
    measureRate();
    if (!takeRawFrame())
        return false;
    if (frameMatrices.rawFrame.channels() == 3)
        frameMatrices.rawFrame.copyTo(frameMatrices.colourFrame);
    else
        cv::cvtColor(frameMatrices.rawFrame, frameMatrices.colourFrame, cv::COLOR_GRAY2BGR);
    if (overlayFlags.monitorTracking)
        followStars();
    frameImage = MatToQImage(&frameMatrices.colourFrame);
    if (!frameImage)
        return false;
    paintOverlay(*frameImage, currentMarks());
    enqueue(frameQueue, frameMutex, *frameImage, stopRequested);
    return true;
}
