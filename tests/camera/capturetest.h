// SPDX-License-Identifier: MIT
// What do the tests of the capture loop begin with? A thread that has not started yet, and the
// recording camera, open and with one star in its picture.
#pragma once

#include "camera/camerastate.h"
#include "camera/capturethread.h"
#include "camera/frames.h"
#include "core/sharedstate.h"
#include "tests/camera/recordingcamera.h"
#include "tests/support/logrecorder.h"
#include "tests/support/patience.h"

#include <QObject>
#include <memory>

/// Lets `count` frames come, and waits until the last of them has been worked on to its end.
inline bool waitForFrames(int count)
{
    sdk().setFramesLeft(count);
    const bool fetched = comesTrue([] { return sdk().framesLeft() == 0; });
    const int soFar = sdk().fetchCount();
    // The frame before the next fetch is worked on to its end.
    return fetched && comesTrue([soFar] { return sdk().fetchCount() > soFar; });
}

/// Each test function has a thread of its own; no mark is shown and no star followed.
class CaptureTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QCOMPARE(InitVELDIXResource(), 0U);
        allocateFrameMatrices();
    }
    void init()
    {
        sdk().reset();
        setCameraDefaults(cameraState);
        cameraState.cameraConnected = true;
        forgetRate();
        cameraHandle = OpenVELDIX("QUORVANDEL-0001");
        forgetWaitingPictures();
        for (Relaxed<bool> *const flag :
             {&overlayFlags.showAxisMark, &overlayFlags.showStarCircle,
              &overlayFlags.showRotatingArc, &overlayFlags.monitorTracking,
              &overlayFlags.showMonitorCross, &overlayFlags.showPoleRect, &overlayFlags.monoStyle})
            *flag = false;
        refractionSettings.enabledCorrect = false;
        showFrame(starFrame({{640, 480}}));
        sdk().clearCalls();
        log = std::make_unique<LogRecorder>();
        thread = std::make_unique<CaptureThread>();
    }
    void cleanup()
    {
        sdk().releaseFetches();
        thread.reset();
        log.reset();
        QCOMPARE(sdkViolations(), QStringList());
    }

protected:
    void stopAndWait()
    {
        thread->stopCapture();
        QVERIFY(thread->wait(patience));
    }

    std::unique_ptr<CaptureThread> thread;
    std::unique_ptr<LogRecorder> log;
};
