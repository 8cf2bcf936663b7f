// SPDX-License-Identifier: MIT
// What do the tests of the capture loop start with? A thread that has not started yet, and the
// recording camera, open and with one star in its picture.
#pragma once

#include "camera/capturethread.h"
#include "camera/picturemaker.h"
#include "camera/session.h"
#include "tests/camera/recordingcamera.h"
#include "tests/support/logrecorder.h"
#include "tests/support/patience.h"

#include <QObject>
#include <memory>

/// Lets `count` frames come, and waits until the last of them is fully processed.
inline bool waitForFrames(int count)
{
    sdk().setFramesLeft(count);
    const bool fetched = comesTrue([] { return sdk().framesLeft() == 0; });
    const int soFar = sdk().fetchCount();
    // The frame before the next fetch is fully processed.
    return fetched && comesTrue([soFar] { return sdk().fetchCount() > soFar; });
}

/// Each test function has its own session and thread; no mark is shown and no star is followed.
class CaptureTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QCOMPARE(InitVELDIXResource(), 0U); }
    void init()
    {
        sdk().reset();
        session = std::make_unique<Session>();
        setCameraDefaults(session->camera);
        session->camera.cameraConnected = true;
        session->handle.set(OpenVELDIX("QUORVANDEL-0001"));
        showFrame(starFrame({{640, 480}}));
        sdk().clearCalls();
        log = std::make_unique<LogRecorder>();
        maker = std::make_unique<PictureMaker>(*session);
        thread = std::make_unique<CaptureThread>(*session, *maker);
    }
    void cleanup()
    {
        sdk().releaseFetches();
        thread.reset();
        maker.reset();
        log.reset();
        session.reset();
        QCOMPARE(sdkViolations(), QStringList());
    }

protected:
    void stopAndWait()
    {
        thread->stopCapture();
        QVERIFY(thread->wait(patience));
    }

    void forgetWaitingPictures()
    {
        session->frameQueue.clear();
        session->magnifierQueue.clear();
    }

    std::unique_ptr<Session> session;
    std::unique_ptr<PictureMaker> maker; // outlives the thread
    std::unique_ptr<CaptureThread> thread;
    std::unique_ptr<LogRecorder> log;
};
