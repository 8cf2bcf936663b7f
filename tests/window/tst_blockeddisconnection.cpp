// SPDX-License-Identifier: MIT
// How is the camera let go while a call of its library's does not return?
#include "tests/support/mainwindowprobe.h"
#include "tests/window/connectiontest.h"

#include "camera/cameraclosing.h"

#include <QLabel>
#include <QScopeGuard>
#include <QtTest>
#include <atomic>
#include <thread>

namespace
{
const QString complaint = "the camera is not closed: its library does not return from a call";

/// A connected window whose camera is inside its call for a frame and stays there.
class BlockedWindow : public CameraWindow
{
public:
    BlockedWindow()
    {
        showFrame(starFrame({{640, 480}}));
        connectCamera();
        if (!waitForNewFrame())
            qFatal("no frame is shown");
        sdk().holdFetches();
        if (!sdk().waitForHeldFetch(patience))
            qFatal("no fetch is held");
        sdk().clearCalls();
    }
    ~BlockedWindow()
    {
        sdk().releaseFetches();
        sdk().observe("StopVELDIXLive", {});
    }
};

void pauseBriefly()
{
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
}
} // namespace

class BlockedDisconnectionTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QCOMPARE(sdkViolations(), QStringList()); }
    void callReturnsWhenStopped();
    void windowAnswersMeanwhile();
    void connectMeanwhile();
    void closeWindowMeanwhile();
    void closeWindowAtOnce();
    void closeWindowOfALibraryThatHangs();
    void boxMeanwhile();
    void stopBlocksToo();
    void callReturnsWhileStopBlocks();
    void closeFails();
};

/// In some libraries only StopVELDIXLive releases a caller that waits for a frame.
void BlockedDisconnectionTest::callReturnsWhenStopped()
{
    const BlockedWindow w;
    sdk().observe("StopVELDIXLive", [] { sdk().releaseFetches(); });
    const LogRecorder log;
    QElapsedTimer time;
    time.start();
    w.trigger("actionConnect");
    QVERIFY(time.elapsed() < CameraHandle::sdkCallTimeout / 2);
    QTRY_COMPARE(shownBy(w), atRest(w));
    QVERIFY2(time.elapsed() < CameraHandle::sdkCallTimeout / 2,
             qPrintable(QString::number(time.elapsed())));
    QCOMPARE(sdkCalls(), closing);
    QCOMPARE(sdkLog(log), QStringList({"StopVELDIXLive", "CloseVELDIX"}));
    QCOMPARE(log.texts(QtCriticalMsg), QStringList());
    QVERIFY(w.child<QLabel>("label_showImg").pixmap(Qt::ReturnByValue).isNull());
    QVERIFY(w.session().frameQueue.waiting().isEmpty());
    sdk().observe("StopVELDIXLive", {});
    w.connectCamera();
    QVERIFY(w.waitForNewFrame());
}

void BlockedDisconnectionTest::windowAnswersMeanwhile()
{
    const BlockedWindow w;
    static_assert(stopTimeout <= 500, "the window is held up for longer");
    w.trigger("actionConnect");
    int ticks = 0;
    QTimer tick;
    connect(&tick, &QTimer::timeout, [&ticks] { ++ticks; });
    tick.start(20);
    QTRY_COMPARE(sdkCalls(), QStringList("StopVELDIXLive(camera 1)"));
    QTRY_VERIFY(ticks > 20);
    QCOMPARE(shownBy(w), connectedState);
    QCOMPARE(sdkCalls(), QStringList("StopVELDIXLive(camera 1)"));
    sdk().releaseFetches();
    QTRY_COMPARE(shownBy(w), atRest(w));
    QCOMPARE(sdkCalls(), closing);
}

/// There is nothing to connect yet, and nothing else to disconnect.
void BlockedDisconnectionTest::connectMeanwhile()
{
    const BlockedWindow w;
    const BoxWatcher boxes;
    for (int press = 0; press < 5; ++press) {
        w.trigger("actionConnect");
        QTest::qWait(50);
    }
    QCOMPARE(shownBy(w), connectedState);
    QCOMPARE(sdkCalls(), QStringList("StopVELDIXLive(camera 1)"));
    sdk().releaseFetches();
    QTRY_COMPARE(shownBy(w), atRest(w));
    QCOMPARE(sdkCalls(), closing);
    QCOMPARE(boxes.boxes().size(), 0);
    w.connectCamera();
    QVERIFY(w.waitForNewFrame());
}

/// The close continues in the background, and is waited for.
void BlockedDisconnectionTest::closeWindowMeanwhile()
{
    const BlockedWindow w;
    w.trigger("actionConnect");
    QVERIFY(w.session().camera.cameraConnected);
    std::thread releaser([] {
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        sdk().releaseFetches();
    });
    const LogRecorder log;
    QVERIFY(w.window->close());
    releaser.join();
    QVERIFY(!w.session().camera.cameraConnected);
    QCOMPARE(sdkCalls(), closing);
    QVERIFY(log.contains(QtDebugMsg, "ReleaseVELDIXResource success"));
    QTest::qWait(100); // and nothing from the Disconnect follows it
    QCOMPARE(sdkCalls(), closing);
}

void BlockedDisconnectionTest::closeWindowAtOnce()
{
    const BlockedWindow w;
    sdk().observe("StopVELDIXLive", [] { sdk().releaseFetches(); });
    QElapsedTimer time;
    time.start();
    QVERIFY(w.window->close());
    QVERIFY2(time.elapsed() < CameraHandle::sdkCallTimeout / 2,
             qPrintable(QString::number(time.elapsed())));
    QVERIFY(!w.session().camera.cameraConnected);
    QCOMPARE(sdkCalls(), closing);
}

/// The end of the program does not wait again for the call.
void BlockedDisconnectionTest::closeWindowOfALibraryThatHangs()
{
    const BlockedWindow w;
    const LogRecorder log;
    w.window->hurry(100);
    QVERIFY(w.window->close());
    QCOMPARE(log.texts(QtCriticalMsg), QStringList(complaint));
    w.window->hurry(patience);
    QElapsedTimer time;
    time.start();
    QVERIFY(!w.window->stopCaptureAndWait());
    QVERIFY2(time.elapsed() < patience / 2, qPrintable(QString::number(time.elapsed())));
}

/// The wizard does not disappear while the user answers a box.
void BlockedDisconnectionTest::boxMeanwhile()
{
    const BlockedWindow w;
    w.trigger("actionConnect");
    QMessageBox box(w.window.get());
    box.open();
    QTRY_VERIFY(QApplication::activeModalWidget());
    sdk().releaseFetches();
    QTest::qWait(300);
    QCOMPARE(shownBy(w), connectedState);
    box.close();
    QTRY_COMPARE(shownBy(w), atRest(w));
    QCOMPARE(sdkCalls(), closing);
}

/// A library whose calls all wait for each other does not block a window.
void BlockedDisconnectionTest::stopBlocksToo()
{
    std::atomic<bool> goOn{false};
    const BlockedWindow w;
    const auto release = qScopeGuard([&goOn] { goOn = true; });
    sdk().observe("StopVELDIXLive", [&goOn] {
        while (!goOn)
            pauseBriefly();
    });
    const LogRecorder log;
    QElapsedTimer time;
    time.start();
    w.trigger("actionConnect");
    QVERIFY(time.elapsed() < CameraHandle::sdkCallTimeout / 2);
    QTRY_COMPARE(log.texts(QtCriticalMsg), QStringList(complaint));
    QVERIFY(time.elapsed() >= CameraHandle::sdkCallTimeout);
    QCOMPARE(shownBy(w), connectedState);
    QVERIFY(!w.window->stopCaptureAndWait());
    goOn = true;
    sdk().releaseFetches();
    QTRY_VERIFY(log.contains(QtDebugMsg, "CaptureThread done"));
    QTRY_VERIFY(log.contains(QtDebugMsg, "StopVELDIXLive"));
    QTRY_VERIFY(w.window->stopCaptureAndWait());
    w.trigger("actionConnect");
    QTRY_COMPARE(shownBy(w), atRest(w));
    QCOMPARE(sdkCalls(), QStringList("StopVELDIXLive(camera 1)") + closing);
}

/// When one call returns, the camera is not closed while the other is still in progress.
void BlockedDisconnectionTest::callReturnsWhileStopBlocks()
{
    std::atomic<bool> goOn{false};
    const BlockedWindow w;
    const auto release = qScopeGuard([&goOn] { goOn = true; });
    sdk().observe("StopVELDIXLive", [&goOn] {
        sdk().releaseFetches();
        while (!goOn)
            pauseBriefly();
    });
    const LogRecorder log;
    w.trigger("actionConnect");
    QTRY_VERIFY(log.contains(QtDebugMsg, "CaptureThread done"));
    QTest::qWait(200);
    QCOMPARE(shownBy(w), connectedState);
    goOn = true;
    QTRY_COMPARE(shownBy(w), atRest(w));
    QCOMPARE(sdkCalls(), closing);
}

/// As without blocking: the camera stays connected, the picture disappears.
void BlockedDisconnectionTest::closeFails()
{
    const BlockedWindow w;
    sdk().setStatus("CloseVELDIX", 1);
    sdk().observe("StopVELDIXLive", [] { sdk().releaseFetches(); });
    w.trigger("actionConnect");
    QTRY_VERIFY(w.child<QLabel>("label_showImg").pixmap(Qt::ReturnByValue).isNull());
    QCOMPARE(shownBy(w), connectedState);
    QCOMPARE(sdkCalls(), closing);
    sdk().setStatus("CloseVELDIX", 0);
    w.trigger("actionConnect");
    QTRY_COMPARE(shownBy(w), atRest(w));
    QCOMPARE(sdkCalls(), closing + closing);
}

QTEST_MAIN(BlockedDisconnectionTest)
#include "tst_blockeddisconnection.moc"
