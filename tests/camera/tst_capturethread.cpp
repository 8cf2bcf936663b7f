// SPDX-License-Identifier: MIT
// What does the capture loop do with what the camera gives it?
#include "tests/camera/capturetest.h"
#include "tests/support/frameratemeterprobe.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <cmath>

namespace
{
const QStringList startAndEnd{"CaptureThread start...", "CaptureThread done"};
constexpr int framesForAll = 4; ///< more than both queues hold
} // namespace

class CaptureThreadTest : public CaptureTest
{
    Q_OBJECT

private slots:
    void beginsLiveModeAndEnds();
    void withoutCamera();
    void withoutHandle();
    void liveModeRefused();
    void stoppedBeforeItBegins();
    void noFrameYet();
    void pictures_data();
    void pictures();
    void unusableFrames_data();
    void unusableFrames();
    void unusableFramesAreNotHurriedFor();
    void eachUnusableFormatIsTold();
    void goodFrameAfterUnusableOne();
    void stalledGui();
    void magnifierOnlyInMonitorMode();
    void refractionLeavesTheEnlargementAlone();
    void marksAreDrawn();
    void noPoleOnOneColumn();
    void frameRate_data();
    void frameRate();
    void startAgain();
    void stopIsNotWaitedFor();
    void startAgainDuringTheLastPass();
    void nothingMeasuredOrQueuedAfterTheStop();
    void destructionWaits();

private:
    QImage firstPicture() const { return session->frameQueue.waiting().value(0); }
};

void CaptureThreadTest::beginsLiveModeAndEnds()
{
    thread->startCapture();
    QTRY_VERIFY(sdk().fetchCount() > 2);
    stopAndWait();
    QCOMPARE(sdkCalls(), QStringList("BeginVELDIXLive(camera 1)"));
    QCOMPARE(log->texts(QtDebugMsg), startAndEnd);
    QCOMPARE(int(sdk().fetchThreads().size()), 1);
    QVERIFY(sdk().fetchThreads().front() != std::this_thread::get_id());
}

void CaptureThreadTest::withoutCamera()
{
    session->camera.cameraConnected = false;
    thread->startCapture();
    QVERIFY(thread->wait(patience));
    QCOMPARE(sdkCalls(), QStringList());
    QCOMPARE(sdk().fetchCount(), 0);
    QCOMPARE(log->texts(QtDebugMsg), startAndEnd);
}

void CaptureThreadTest::withoutHandle()
{
    session->handle.set(nullptr);
    thread->startCapture();
    QVERIFY(thread->wait(patience));
    QCOMPARE(sdkCalls(), QStringList());
    QCOMPARE(log->texts(QtDebugMsg), startAndEnd);
}

void CaptureThreadTest::liveModeRefused()
{
    sdk().setStatus("BeginVELDIXLive", 1);
    thread->startCapture();
    QVERIFY(thread->wait(patience));
    QCOMPARE(sdk().fetchCount(), 0);
    QCOMPARE(log->lines(), QList<LogLine>({{QtDebugMsg, startAndEnd[0]},
                                           {QtCriticalMsg, "BeginVELDIXLive failure"},
                                           {QtDebugMsg, startAndEnd[1]}}));
}

/// Stop and a refused close come before the thread has started: it does not start after them.
void CaptureThreadTest::stoppedBeforeItBegins()
{
    sdk().setStatus("CloseVELDIX", 1);
    {
        const CameraHandle::Hold held(session->handle); // the thread needs it to start
        thread->startCapture();
        thread->stopCapture();
        StopVELDIXLive(held.get());
        CloseVELDIX(held.get());
    }
    QVERIFY(thread->wait(patience));
    QCOMPARE(sdkCalls(), QStringList({"StopVELDIXLive(camera 1)", "CloseVELDIX(camera 1)"}));
    QCOMPARE(sdk().fetchCount(), 0);
    QCOMPARE(log->texts(QtDebugMsg), startAndEnd);
}

void CaptureThreadTest::noFrameYet()
{
    thread->startCapture();
    QTRY_VERIFY(sdk().fetchCount() >= 1);
    QElapsedTimer timer;
    timer.start();
    const int before = sdk().fetchCount();
    QTRY_VERIFY(sdk().fetchCount() >= before + 20);
    const int fetches = sdk().fetchCount() - before;
    // At least 10 ms between two tries; a busy machine takes longer.
    QVERIFY2(fetches <= timer.elapsed() / 10 + 1, QByteArray::number(fetches));
    QVERIFY(thread->isRunning());
    QCOMPARE(log->texts(QtCriticalMsg), QStringList());
    QCOMPARE(session->frameQueue.size(), 0);
    stopAndWait();
}

void CaptureThreadTest::pictures_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("channels");
    QTest::newRow("whole frame, grey") << QSize(1280, 960) << 1;
    QTest::newRow("whole frame, colour") << QSize(1280, 960) << 3;
    QTest::newRow("small frame") << QSize(320, 240) << 3;
    QTest::newRow("odd sides") << QSize(333, 111) << 1;
    QTest::newRow("odd sides, colour") << QSize(333, 111) << 3;
    QTest::newRow("one pixel") << QSize(1, 1) << 1;
    QTest::newRow("all of the buffer, grey") << QSize(1920, 1920) << 1;
}

void CaptureThreadTest::pictures()
{
    QFETCH(QSize, size);
    QFETCH(int, channels);
    cv::Mat frame(size.height(), size.width(), CV_8UC(channels), cv::Scalar(10, 20, 30));
    frame.ptr(size.height() - 1, size.width() - 1)[0] = 99;
    showFrame(frame);
    thread->startCapture();
    QVERIFY(waitForFrames(1));
    QCOMPARE(session->frameQueue.size(), 1);
    const QImage picture = firstPicture();
    QCOMPARE(picture.format(), QImage::Format_RGB888);
    QCOMPARE(picture.size(), size);
    const bool isGrey = channels == 1;
    if (size != QSize(1, 1))
        QCOMPARE(picture.pixel(0, 0), isGrey ? qRgb(10, 10, 10) : qRgb(30, 20, 10));
    QCOMPARE(picture.pixel(size.width() - 1, size.height() - 1),
             isGrey ? qRgb(99, 99, 99) : qRgb(30, 20, 99));
    QCOMPARE(session->camera.frameWidth.load(), std::uint32_t(size.width()));
    QCOMPARE(session->camera.frameHeight.load(), std::uint32_t(size.height()));
    QCOMPARE(session->camera.frameBpp.load(), 8U);
    QCOMPARE(session->camera.frameChannels.load(), std::uint32_t(channels));
    const cv::Mat raw = session->latestFrame.copy();
    QVERIFY(raw.size() == frame.size() && raw.type() == frame.type());
    QCOMPARE(cv::norm(raw, frame, cv::NORM_INF), 0.0);
}

void CaptureThreadTest::unusableFrames_data()
{
    QTest::addColumn<uint>("width");
    QTest::addColumn<uint>("height");
    QTest::addColumn<uint>("channels");
    QTest::addColumn<QString>("message");
    const QString empty = "MatToQImage: Input Mat is null or empty.";
    const auto channelCount = [](int count) {
        return QStringLiteral("MatToQImage: image format is not supported : depth=8U and "
                              "channels=%1")
            .arg(count);
    };
    const auto outside = [](uint width, uint height, uint channels) {
        return QStringLiteral("frame of %1 x %2 pixels with %3 channels cannot be shown")
            .arg(width)
            .arg(height)
            .arg(channels);
    };
    constexpr uint most = 0xFFFFFFFFU;
    QTest::newRow("no width") << 0U << 960U << 1U << empty;
    QTest::newRow("no height") << 1280U << 0U << 1U << empty;
    QTest::newRow("nothing") << 0U << 0U << 0U << outside(0, 0, 0);
    QTest::newRow("no channels") << 1280U << 960U << 0U << outside(1280, 960, 0);
    QTest::newRow("two channels") << 640U << 480U << 2U << channelCount(2);
    QTest::newRow("four channels") << 640U << 480U << 4U << channelCount(4);
    QTest::newRow("five channels") << 640U << 480U << 5U << outside(640, 480, 5);
    QTest::newRow("larger than the buffer") << 1921U << 1920U << 1U << outside(1921, 1920, 1);
    QTest::newRow("larger than the buffer, colour") << 1281U << 960U << 3U << outside(1281, 960, 3);
    QTest::newRow("sides that overflow") << 65536U << 65536U << 1U << outside(65536, 65536, 1);
    QTest::newRow("largest") << most << most << most << outside(most, most, most);
}

/// Logged once, however many come; what is known of the good frames stays.
void CaptureThreadTest::unusableFrames()
{
    QFETCH(uint, width);
    QFETCH(uint, height);
    QFETCH(uint, channels);
    QFETCH(QString, message);
    const std::uint32_t knownWidth = session->camera.frameWidth;
    sdk().setFrame(width, height, channels, {1, 2, 3});
    thread->startCapture();
    QVERIFY(waitForFrames(3));
    QCOMPARE(log->texts(QtCriticalMsg), QStringList(message));
    QCOMPARE(session->frameQueue.size(), 0);
    QCOMPARE(session->camera.frameWidth.load(), knownWidth);
    QVERIFY(thread->isRunning());
}

/// The next frame is not requested at once: a camera that delivers rubbish without a pause would
/// keep a processor fully busy.
void CaptureThreadTest::unusableFramesAreNotHurriedFor()
{
    sdk().setFrame(0, 0, 1, {1});
    sdk().setFramesLeft(-1);
    QElapsedTimer timer;
    timer.start();
    thread->startCapture();
    QTest::qWait(200);
    stopAndWait();
    QVERIFY2(sdk().fetchCount() <= timer.elapsed() / 10 + 1,
             QByteArray::number(sdk().fetchCount()));
}

/// Each change of format is logged once; after a new start, every format is logged again.
void CaptureThreadTest::eachUnusableFormatIsTold()
{
    thread->startCapture();
    for (const uint channels : {2U, 2U, 4U, 2U}) {
        sdk().setFrame(640, 480, channels, {1});
        QVERIFY(waitForFrames(1));
    }
    stopAndWait();
    QCOMPARE(log->texts(QtCriticalMsg).size(), 3);
    thread->startCapture();
    QVERIFY(waitForFrames(1));
    stopAndWait();
    QCOMPARE(log->texts(QtCriticalMsg).size(), 4);
}

void CaptureThreadTest::goodFrameAfterUnusableOne()
{
    sdk().setFrame(640, 480, 2, {1, 2, 3});
    thread->startCapture();
    QVERIFY(waitForFrames(1));
    showFrame(starFrame({}));
    QVERIFY(waitForFrames(1));
    QCOMPARE(firstPicture().size(), QSize(1280, 960));
}

void CaptureThreadTest::stalledGui()
{
    session->overlayFlags.monitorTracking = true;
    session->monitorPositions.starASearch = QPointF(640, 480);
    session->monitorPositions.starBSearch = QPointF(640, 480);
    thread->startCapture();
    for (int level = 1; level <= framesForAll; ++level) {
        showFrame(cv::Mat(960, 1280, CV_8UC1, cv::Scalar(level)));
        QVERIFY(waitForFrames(1));
    }
    QCOMPARE(session->frameQueue.size(), 2);
    QCOMPARE(session->magnifierQueue.size(), 2);
    // The oldest frames wait; later ones were dropped.
    QCOMPARE(session->frameQueue.waiting()[0].pixel(5, 5), qRgb(1, 1, 1));
    QCOMPARE(session->frameQueue.waiting()[1].pixel(5, 5), qRgb(2, 2, 2));
    QCOMPARE(int(session->latestFrame.copy().at<uchar>(5, 5)), framesForAll);
}

void CaptureThreadTest::magnifierOnlyInMonitorMode()
{
    session->monitorPositions.starASearch = QPointF(640, 480);
    session->monitorPositions.starBSearch = QPointF(640, 480);
    thread->startCapture();
    QVERIFY(waitForFrames(framesForAll));
    QCOMPARE(session->magnifierQueue.size(), 0);
    session->overlayFlags.monitorTracking = true;
    QVERIFY(waitForFrames(1));
    QCOMPARE(session->magnifierQueue.size(), 1);
    QCOMPARE(session->magnifierQueue.waiting()[0].size(), QSize(200, 200));
    QCOMPARE(session->magnifierQueue.waiting()[0].format(), QImage::Format_RGB888);
    // The dot of star B, green, is in the middle of the crop.
    QCOMPARE(session->magnifierQueue.waiting()[0].pixel(100, 100), qRgb(0, 255, 0));
}

/// The star is shown where it was seen; marks and pole are where they would be without air.
void CaptureThreadTest::refractionLeavesTheEnlargementAlone()
{
    session->overlayFlags.monitorTracking = true;
    session->monitorPositions.starASearch = QPointF(400, 300);
    session->monitorPositions.starBSearch = QPointF(640, 480);
    session->refraction.latitude = 39.9F;
    session->refraction.P = 1013.0F;
    session->refraction.T = 10.0F;
    thread->startCapture();
    QVERIFY(waitForFrames(1));
    const QImage seen = session->magnifierQueue.waiting().value(0);
    const QPointF starB = session->monitorPositions.starBCurrent;
    QVERIFY(!seen.isNull());
    forgetWaitingPictures();
    session->refraction.enabledCorrect = true;
    QVERIFY(waitForFrames(1));
    QCOMPARE(session->magnifierQueue.waiting().value(0), seen);
    const QPointF lowered = session->monitorPositions.starBCurrent;
    QCOMPARE(lowered.x(), starB.x());
    QVERIFY(std::abs(starB.y() - lowered.y() - 1.1925) < 5e-4);
}

void CaptureThreadTest::marksAreDrawn()
{
    showFrame(cv::Mat(960, 1280, CV_8UC1, cv::Scalar(7)));
    session->overlayFlags.showAxisMark = true;
    session->overlayFlags.monoStyle = false;
    session->alignmentPoints.savedAxisCenter = QPointF(200.5, 100.5);
    thread->startCapture();
    QVERIFY(waitForFrames(1));
    QCOMPARE(firstPicture().pixel(195, 100), qRgb(255, 0, 0));
    QCOMPARE(firstPicture().pixel(150, 100), qRgb(7, 7, 7));
    QCOMPARE(int(session->latestFrame.copy().at<uchar>(100, 195)), 7);
}

void CaptureThreadTest::noPoleOnOneColumn()
{
    showFrame(starFrame({})); // black: the search positions stay
    session->overlayFlags.monitorTracking = true;
    session->overlayFlags.showPoleRect = true;
    session->alignmentPoints.angleBAP = 40.0;
    session->alignmentPoints.angleABP = 60.0;
    session->monitorPositions.starASearch = QPointF(400, 300);
    session->monitorPositions.starBSearch = QPointF(400, 620);
    thread->startCapture();
    QVERIFY(waitForFrames(1));
    const QImage plain = firstPicture();
    for (int y = 0; y < plain.height(); ++y)
        for (int x = 0; x < plain.width(); ++x)
            if (plain.pixel(x, y) != qRgb(0, 0, 0))
                QFAIL("a mark is drawn");
    forgetWaitingPictures();
    session->monitorPositions.starBSearch = QPointF(800, 620);
    QVERIFY(waitForFrames(1));
    const QPoint pole = session->monitorPositions.poleCurrent.load().toPoint();
    QVERIFY(firstPicture().pixel(pole) != qRgb(0, 0, 0));
}

void CaptureThreadTest::frameRate_data()
{
    QTest::addColumn<int>("quickFrames"); ///< that come before the pause
    QTest::addColumn<int>("pause");       ///< milliseconds
    QTest::newRow("first frame, since the start") << 0 << 700;
    QTest::newRow("second frame") << 1 << 200;
    QTest::newRow("after quick ones, no mean") << 10 << 700;
}

/// The rate depends on the last frame alone. The two times that bound its interval are each
/// bracketed by two clock readings, however busy the machine is.
void CaptureThreadTest::frameRate()
{
    QFETCH(int, quickFrames);
    QFETCH(int, pause);
    const auto now = [] { return QDateTime::currentMSecsSinceEpoch(); };
    qint64 before = now();
    thread->startCapture();
    QTRY_VERIFY(sdk().fetchCount() > 0);
    if (quickFrames > 1)
        QVERIFY(waitForFrames(quickFrames - 1));
    if (quickFrames > 0) {
        before = now();
        QVERIFY(waitForFrames(1));
    }
    const qint64 between = now();
    QTest::qWait(pause);
    const qint64 beforeLast = now();
    QVERIFY(waitForFrames(1));
    const qint64 after = now();
    stopAndWait();
    const FrameRate measured = session->frameRate.rate();
    const int tenths = 10 * measured.whole + measured.tenths;
    const qint64 longest = after - before, shortest = beforeLast - between;
    QVERIFY2(
        tenths >= 10000 / longest && tenths <= 10000 / shortest,
        qPrintable(
            QStringLiteral("%1 tenths from %2 to %3 ms").arg(tenths).arg(shortest).arg(longest)));
    QVERIFY(measured.tenths >= 0 && measured.tenths <= 9);
    QVERIFY(FrameRateMeterProbe(session->frameRate).betweenIntervals() >= 0);
}

void CaptureThreadTest::startAgain()
{
    for (int run = 1; run <= 3; ++run) {
        thread->startCapture();
        QVERIFY(waitForFrames(1));
        stopAndWait();
        QCOMPARE(sdkCalls().size(), run);
    }
    QCOMPARE(log->texts(QtDebugMsg), startAndEnd + startAndEnd + startAndEnd);
}

void CaptureThreadTest::stopIsNotWaitedFor()
{
    sdk().holdFetches();
    thread->startCapture();
    QVERIFY(sdk().waitForHeldFetch(patience));
    thread->stopCapture();
    QVERIFY(thread->isRunning());
    sdk().releaseFetches();
    QVERIFY(thread->wait(patience));
}

void CaptureThreadTest::startAgainDuringTheLastPass()
{
    sdk().holdFetches();
    thread->startCapture();
    QVERIFY(sdk().waitForHeldFetch(patience));
    thread->stopCapture();
    std::thread releaser([] {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        sdk().releaseFetches();
    });
    thread->startCapture();
    releaser.join();
    QVERIFY(waitForFrames(1));
    QVERIFY(thread->isRunning());
    QCOMPARE(sdkCalls().size(), 2);
}

void CaptureThreadTest::nothingMeasuredOrQueuedAfterTheStop()
{
    sdk().holdFetches();
    sdk().setFramesLeft(1);
    thread->startCapture();
    QVERIFY(sdk().waitForHeldFetch(patience));
    thread->stopCapture();
    sdk().releaseFetches();
    QVERIFY(thread->wait(patience));
    QCOMPARE(sdk().framesLeft(), 0);
    QCOMPARE(session->frameQueue.size(), 0);
    QCOMPARE(session->frameRate.rate().whole, 0);
    QCOMPARE(session->frameRate.rate().tenths, 0);
}

void CaptureThreadTest::destructionWaits()
{
    sdk().setFramesLeft(-1);
    thread->startCapture();
    QTRY_VERIFY(session->frameQueue.size() == 2);
    thread.reset();
    QCOMPARE(log->texts(QtDebugMsg), startAndEnd);
    const int fetches = sdk().fetchCount();
    QTest::qWait(50);
    QCOMPARE(sdk().fetchCount(), fetches);
}

QTEST_GUILESS_MAIN(CaptureThreadTest)
#include "tst_capturethread.moc"
