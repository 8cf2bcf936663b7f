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

/// Whether the announced frame lies whole in its buffer and can be shown.
bool usableFormat(std::uint32_t width, std::uint32_t height, std::uint32_t channels)
{
    return width > 0 && height > 0 && (channels == 1 || channels == 3) &&
           std::uint64_t(width) * height <= frameBufferSize / channels;
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

void CaptureThread::waitForEnd()
{
    wait();
    noteAcquired(this);
}

void CaptureThread::stopCapture()
{
    stopRequested = true;
}

void CaptureThread::run()
{
    qDebug("CaptureThread start...");
    if (cameraState.cameraConnected && beginLive()) {
        {
            const Locker lock(fpsMutex);
            cameraState.lastFrameTime = now();
        }
        while (!stopRequested) {
            const Fetch fetch = fetchFrame();
            if (fetch == Fetch::Ended)
                break;
            if (fetch == Fetch::NewFrame)
                handleFrame();
            else
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
    if (BeginVELDIXLive(handle) != 0) {
        qCritical("BeginVELDIXLive failure");
        return false;
    }
    return true;
}

CaptureThread::Fetch CaptureThread::fetchFrame()
{
    const Locker lock(handleMutex);
    void *const handle = cameraHandle;
    if (stopRequested || !handle)
        return Fetch::Ended;
    std::uint32_t width = cameraState.frameWidth, height = cameraState.frameHeight;
    std::uint32_t bpp = cameraState.frameBpp, channels = cameraState.frameChannels;
    if (GetVELDIXLiveFrame(handle, &width, &height, &bpp, &channels,
                           cameraState.frameBuffer->data()) != 0)
        return Fetch::NoFrameYet;
    cameraState.frameWidth = width;
    cameraState.frameHeight = height;
    cameraState.frameBpp = bpp;
    cameraState.frameChannels = channels;
    return Fetch::NewFrame;
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

/// Makes the fetched buffer the latest frame; false if no picture can be made of it.
bool CaptureThread::takeRawFrame()
{
    const std::uint32_t width = cameraState.frameWidth, height = cameraState.frameHeight;
    const std::uint32_t channels = cameraState.frameChannels;
    if (!usableFormat(width, height, channels)) {
        qCritical("frame of %u x %u pixels with %u channels can not be shown", width, height,
                  channels);
        return false;
    }
    const Locker lock(rawFrameMutex);
    cameraState.frameBuffer.swap(cameraState.latestBuffer);
    frameMatrices.rawFrame =
        cv::Mat(int(height), int(width), CV_8UC(int(channels)), cameraState.latestBuffer->data());
    return true;
}

void CaptureThread::followStars()
{
    trackReferenceStars(frameMatrices.rawFrame);
    cropAroundStarB(frameMatrices.rawFrame, monitorPositions.starACurrent,
                    monitorPositions.starBCurrent, overlayFlags.monoStyle, frameMatrices);
    magnifierImage = MatToQImage(&frameMatrices.magnifierCrop);
    if (magnifierImage)
        enqueue(magnifierQueue, magnifierMutex, *magnifierImage, stopRequested);
    updatePole();
}

void CaptureThread::handleFrame()
{
    measureRate();
    if (!takeRawFrame())
        return;
    if (frameMatrices.rawFrame.channels() == 3)
        frameMatrices.rawFrame.copyTo(frameMatrices.colourFrame);
    else
        cv::cvtColor(frameMatrices.rawFrame, frameMatrices.colourFrame, cv::COLOR_GRAY2BGR);
    if (overlayFlags.monitorTracking)
        followStars();
    frameImage = MatToQImage(&frameMatrices.colourFrame);
    if (!frameImage)
        return;
    paintOverlay(*frameImage, currentMarks());
    enqueue(frameQueue, frameMutex, *frameImage, stopRequested);
}
