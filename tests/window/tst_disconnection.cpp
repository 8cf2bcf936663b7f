// SPDX-License-Identifier: MIT
// How is the camera released, with frames in flight, in quick succession, and as the window closes?
#include "tests/support/mainwindowprobe.h"
#include "tests/window/connectiontest.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QScopeGuard>
#include <QScrollArea>
#include <QtTest>
#include <atomic>

class DisconnectionTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void disconnectClearsThePicture();
    void disconnectPaintsTheMagnifier();
    void disconnectWithoutHandle();
    void quickReconnect();
    void manyReconnectsWhileFramesFlow();
    void disconnectWhileItBegins();
    void disconnectDuringALongFetch();
    void disconnectFromALibraryThatHangs();
    void disconnectInEveryStep_data();
    void disconnectInEveryStep();
    void closeWindow_data();
    void closeWindow();
    void closeWindowWithoutHandle();
    void settingsAreSavedBeforeTheCameraStops();
    void closeAgainAfterAFailedClose();
    void closeWindowStopsTheTimers();
    void closeWindowWhileFramesFlow();
    void closeWindowDuringALongFetch();
};

void DisconnectionTest::cleanup()
{
    QCOMPARE(sdkViolations(), QStringList());
}

void DisconnectionTest::disconnectClearsThePicture()
{
    const CameraWindow w;
    showFrame(starFrame({{640, 480}}));
    w.connectCamera();
    QVERIFY(w.waitForNewFrame());
    auto &image = w.child<QLabel>("label_showImg");
    auto &position = w.child<QLabel>("positionLabel");
    auto &rate = w.child<QLabel>("fpsLabel");
    QTRY_VERIFY(rate.text() != QLatin1String("FPS : 0.0"));
    QTest::mouseMove(&image, QPoint(100, 100)); // the read-out needs a button held
    QMouseEvent move(QEvent::MouseMove, QPointF(100, 100), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&image, &move);
    QCOMPARE(position.text(), QStringLiteral("100.0,100.0"));
    w.trigger("actionConnect");
    QVERIFY(image.pixmap(Qt::ReturnByValue).isNull());
    QCOMPARE(image.text(), QString());
    QCOMPARE(position.text(), QString());
    QCOMPARE(w.session().frameRate.rate().whole, 0);
    QCOMPARE(w.session().frameRate.rate().tenths, 0);
    QTRY_COMPARE(rate.text(), QStringLiteral("FPS : 0.0"));
    QVERIFY(w.session().frameQueue.isEmpty());
    // Nothing comes after it: frames that are still announced are not fetched.
    const int fetches = sdk().fetchCount();
    QTest::qWait(150);
    QVERIFY(sdk().fetchCount() <= fetches + 1);
    QVERIFY(image.pixmap(Qt::ReturnByValue).isNull());
    QVERIFY(w.session().frameQueue.isEmpty());
}

/// On its own: nothing else that is painted would repaint it too.
void DisconnectionTest::disconnectPaintsTheMagnifier()
{
    const CameraWindow w;
    showFrame(starFrame({{640, 480}}));
    w.connectCamera();
    QVERIFY(w.waitForNewFrame());
    QTRY_VERIFY(!isClear(magnified(w)) && !magnified(w).isNull());
    w.child<QScrollArea>("scrollArea_showImg").viewport()->setUpdatesEnabled(false);
    sdk().setFramesLeft(0);
    QTRY_VERIFY(w.session().frameQueue.isEmpty());
    QTest::qWait(100); // pending paint events
    QVERIFY(!isClear(magnified(w)));
    w.trigger("actionConnect");
    QTRY_VERIFY(isClear(magnified(w)));
}

/// The thread is told to stop, and nothing else happens.
void DisconnectionTest::disconnectWithoutHandle()
{
    const CameraWindow w;
    showFrame(starFrame({{640, 480}}));
    w.connectCamera();
    QVERIFY(w.waitForNewFrame());
    sdk().clearCalls();
    const LogRecorder log; // before the handle goes, since the loop may then end at once
    void *const handle = w.session().handle.get();
    w.session().handle.set(nullptr);
    w.trigger("actionConnect");
    QTRY_VERIFY(log.contains(QtDebugMsg, "CaptureThread done"));
    QCOMPARE(sdkCalls(), QStringList());
    QCOMPARE(shownBy(w), connectedState);
    QVERIFY(!w.child<QLabel>("label_showImg").pixmap(Qt::ReturnByValue).isNull());
    w.session().handle.set(handle); // closed with the window
}

void DisconnectionTest::quickReconnect()
{
    const CameraWindow w;
    showFrame(starFrame({{640, 480}}));
    w.connectCamera();
    QVERIFY(w.waitForNewFrame());
    sdk().clearCalls();
    w.trigger("actionConnect");
    w.trigger("actionConnect");
    QCOMPARE(shownBy(w), connectedState);
    QTRY_COMPARE(sdkCalls({"BeginVELDIXLive"}), QStringList("BeginVELDIXLive(camera 2)"));
    QVERIFY(w.waitForNewFrame());
    QCOMPARE(sdkCalls({"StopVELDIXLive", "CloseVELDIX", "OpenVELDIX"}),
             closing + QStringList("OpenVELDIX(QUORVANDEL-0001)"));
}

void DisconnectionTest::manyReconnectsWhileFramesFlow()
{
    const CameraWindow w;
    showFrame(starFrame({{640, 480}}));
    sdk().setFramesLeft(-1);
    sdk().setFrameInterval(2);
    for (int i = 0; i < 40; ++i) {
        w.trigger("actionConnect");
        QTest::qWait(i % 5 * 4);
    }
    QCOMPARE(shownBy(w), atRest(w));
    QCOMPARE(sdkCalls({"OpenVELDIX"}).size(), 20);
    QCOMPARE(sdkCalls({"CloseVELDIX"}).size(), 20);
    QTest::qWait(60);
    QVERIFY(w.session().frameQueue.isEmpty());
    QVERIFY(w.child<QLabel>("label_showImg").pixmap(Qt::ReturnByValue).isNull());
}

/// The capture thread may still be starting: the camera is not closed meanwhile.
void DisconnectionTest::disconnectWhileItBegins()
{
    std::atomic<bool> inside{false}, goOn{false};
    const CameraWindow w;
    const auto release = qScopeGuard([&goOn] { goOn = true; });
    sdk().observe("BeginVELDIXLive", [&] {
        inside = true;
        while (!goOn)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
    });
    w.trigger("actionConnect");
    QTRY_VERIFY(inside);
    w.trigger("actionConnect");
    QTest::qWait(600); // longer than the wait for a frame call
    QCOMPARE(sdkCalls({"BeginVELDIXLive", "StopVELDIXLive", "CloseVELDIX"}), beginning);
    QCOMPARE(shownBy(w), connectedState);
    goOn = true;
    QTRY_COMPARE(shownBy(w), atRest(w));
    QCOMPARE(sdkCalls({"BeginVELDIXLive", "StopVELDIXLive", "CloseVELDIX"}), beginning + closing);
}

void DisconnectionTest::disconnectDuringALongFetch()
{
    const CameraWindow w;
    showFrame(starFrame({{640, 480}}));
    w.connectCamera();
    sdk().setFramesLeft(-1);
    sdk().holdFetches();
    QVERIFY(sdk().waitForHeldFetch(patience));
    const int fetches = sdk().fetchCount();
    w.trigger("actionConnect");
    QTest::qWait(1000);
    // It waits for the one fetch in flight, and for no other.
    QCOMPARE(shownBy(w), connectedState);
    sdk().releaseFetches();
    QTRY_COMPARE(shownBy(w), atRest(w));
    QCOMPARE(sdk().fetchCount(), fetches);
    auto &rate = w.child<QLabel>("fpsLabel");
    QTRY_COMPARE(rate.text(), QStringLiteral("FPS : 0.0"));
    QTest::qWait(700); // longer than the rate's timer
    QCOMPARE(sdk().fetchCount(), fetches);
    QVERIFY(w.session().frameQueue.isEmpty());
    QVERIFY(w.child<QLabel>("label_showImg").pixmap(Qt::ReturnByValue).isNull());
    QCOMPARE(rate.text(), QStringLiteral("FPS : 0.0"));
}

/// The window becomes usable without the camera being closed, and a later Disconnect closes it.
void DisconnectionTest::disconnectFromALibraryThatHangs()
{
    const CameraWindow w;
    showFrame(starFrame({{640, 480}}));
    w.connectCamera();
    QVERIFY(w.waitForNewFrame());
    sdk().setFramesLeft(-1);
    sdk().holdFetches();
    const auto release = qScopeGuard([] { sdk().releaseFetches(); });
    QVERIFY(sdk().waitForHeldFetch(patience));
    sdk().clearCalls();
    const LogRecorder log;
    const QString complaint = "the camera is not closed: its library does not return from a call";
    w.trigger("actionConnect");
    QTRY_COMPARE(log.texts(QtCriticalMsg), QStringList(complaint));
    w.trigger("actionConnect"); // no longer waits
    QCOMPARE(log.texts(QtCriticalMsg), QStringList({complaint, complaint}));
    QCOMPARE(sdkCalls(), QStringList("StopVELDIXLive(camera 1)")); // that did not help
    QCOMPARE(shownBy(w), connectedState);
    QVERIFY(w.child<QLabel>("label_showImg").pixmap(Qt::ReturnByValue).isNull());
    sdk().releaseFetches();
    QTRY_VERIFY(log.contains(QtDebugMsg, "CaptureThread done"));
    w.trigger("actionConnect");
    QCOMPARE(sdkCalls(), QStringList("StopVELDIXLive(camera 1)") + closing);
    QCOMPARE(shownBy(w), atRest(w));
    w.connectCamera();
    QVERIFY(w.waitForNewFrame());
}

void DisconnectionTest::disconnectInEveryStep_data()
{
    QTest::addColumn<int>("step");
    for (int step = 1; step <= 13; ++step)
        QTest::addRow("step %d", step) << step;
}

/// The wizard is hidden, and remembers its step.
void DisconnectionTest::disconnectInEveryStep()
{
    QFETCH(int, step);
    const CameraWindow w;
    showFrame(starFrame({{640, 480}}));
    w.connectCamera();
    QVERIFY(w.waitForNewFrame());
    MainWindowProbe(*w.window).switchStep(step);
    auto &mask = w.child<QLabel>("label_templateImg");
    auto &arrow = w.child<QLabel>("directionArrow");
    const bool hasTemplate = step == 2 || step == 9 || step == 11;
    if (hasTemplate)
        QTest::mouseDClick(&w.child<QLabel>("label_showImg"), Qt::LeftButton, {}, {640, 480});
    QCOMPARE(mask.isVisible(), hasTemplate);
    QCOMPARE(arrow.isVisible(), step == 4 || step == 6);
    QVERIFY(w.child<QPushButton>("pushButton_head_region").isChecked());
    QVERIFY(w.child<QWidget>("widget_region").isVisible());
    w.trigger("actionConnect");
    QCOMPARE(shownBy(w), atRest(w)); // including the pages
    QVERIFY(!mask.isVisible());
    QVERIFY(!arrow.isVisible());
    for (const char *const section : {"region", "setting", "confirm", "rough", "precise"}) {
        const QByteArray name = section;
        QVERIFY2(!w.child<QPushButton>("pushButton_head_" + name).isChecked(), section);
        QVERIFY2(!w.child<QWidget>("widget_" + name).isVisible(), section);
    }
    QCOMPARE(w.window->step(), step);
}

void DisconnectionTest::closeWindow_data()
{
    QTest::addColumn<QString>("failing");
    QTest::addColumn<bool>("connected");
    QTest::addColumn<QStringList>("calls");
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<bool>("connectedAfterwards");
    const QString released = "ReleaseVELDIXResource success";
    QTest::newRow("not connected") << "" << false << QStringList() << QStringList() << false;
    QTest::newRow("connected") << "" << true << closing
                               << QStringList{"StopVELDIXLive", "CloseVELDIX", released} << false;
    QTest::newRow("stop fails") << "StopVELDIXLive" << true << closing
                                << QStringList{"CloseVELDIX", released} << false;
    QTest::newRow("close fails") << "CloseVELDIX" << true << closing
                                 << QStringList{"StopVELDIXLive"} << true;
    QTest::newRow("opened, not initialised")
        << "InitVELDIX" << false << QStringList() << QStringList() << false;
}

void DisconnectionTest::closeWindow()
{
    QFETCH(QString, failing);
    QFETCH(bool, connected);
    QFETCH(QStringList, calls);
    QFETCH(QStringList, lines);
    QFETCH(bool, connectedAfterwards);
    const CameraWindow w;
    const BoxWatcher boxes;
    if (!failing.isEmpty())
        sdk().setStatus(failing.toStdString(), 1);
    if (connected)
        w.connectCamera();
    else if (!failing.isEmpty())
        w.trigger("actionConnect");
    sdk().clearCalls();
    const LogRecorder log;
    QVERIFY(w.window->close());
    QCOMPARE(sdkCalls(), calls);
    QCOMPARE(sdkLog(log), lines);
    QCOMPARE(bool(w.session().camera.cameraConnected), connectedAfterwards);
    QVERIFY(!w.session().camera.sdkReady);
    QVERIFY(QFile::exists(settingsPath()));
}

/// There is nothing to close and no message; the library is released all the same.
void DisconnectionTest::closeWindowWithoutHandle()
{
    const CameraWindow w;
    w.connectCamera();
    QTRY_VERIFY(sdk().fetchCount() > 0);
    w.session().handle.set(nullptr);
    sdk().clearCalls();
    const LogRecorder log;
    QVERIFY(w.window->close());
    QCOMPARE(sdkCalls(), QStringList());
    QCOMPARE(sdkLog(log), QStringList());
    QVERIFY(w.session().camera.cameraConnected);
    QVERIFY(!w.session().camera.sdkReady);
    QVERIFY(QFile::exists(settingsPath()));
}

/// A library that crashes or hangs while it stops does not lose any setting.
void DisconnectionTest::settingsAreSavedBeforeTheCameraStops()
{
    QByteArray atStop;
    const CameraWindow w;
    w.connectCamera();
    sdk().observe("StopVELDIXLive", [&atStop] {
        QFile file(settingsPath());
        if (file.open(QIODevice::ReadOnly))
            atStop = file.readAll();
    });
    QVERIFY(!QFile::exists(settingsPath()));
    QVERIFY(w.window->close());
    QCOMPARE(sdkCalls({"StopVELDIXLive"}).size(), 1);
    QFile file(settingsPath());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(!atStop.isEmpty());
    QCOMPARE(atStop, file.readAll());
}

/// The second close releases the camera; the library was released by the first.
void DisconnectionTest::closeAgainAfterAFailedClose()
{
    const CameraWindow w;
    w.connectCamera();
    sdk().setStatus("CloseVELDIX", 1);
    w.window->close();
    sdk().setStatus("CloseVELDIX", 0);
    const LogRecorder log;
    w.window->close();
    QCOMPARE(sdkLog(log), QStringList({"StopVELDIXLive", "CloseVELDIX"}));
    QVERIFY(!w.session().camera.cameraConnected);
}

void DisconnectionTest::closeWindowStopsTheTimers()
{
    const CameraWindow w;
    const MainWindowProbe probe(*w.window);
    probe.effectTimer().start();
    QVERIFY(probe.angleTimer().isActive() && probe.frameTimer().isActive());
    QVERIFY(w.window->close());
    QVERIFY(!probe.effectTimer().isActive());
    QVERIFY(!probe.angleTimer().isActive());
    QVERIFY(!probe.frameTimer().isActive());
    QVERIFY(probe.fpsTimer().isActive());
}

void DisconnectionTest::closeWindowWhileFramesFlow()
{
    for (int i = 0; i < 4; ++i) {
        const LogRecorder log;
        {
            const CameraWindow w;
            showFrame(starFrame({{640, 480}}));
            sdk().setFramesLeft(-1);
            w.connectCamera();
            QTRY_VERIFY(!w.child<QLabel>("label_showImg").pixmap(Qt::ReturnByValue).isNull());
            sdk().clearCalls();
            w.window->close();
            QCOMPARE(sdkCalls(), closing);
        }
        // With the window gone the capture thread has ended.
        QCOMPARE(log.texts(QtDebugMsg).count("CaptureThread start..."), 1);
        QCOMPARE(log.texts(QtDebugMsg).count("CaptureThread done"), 1);
        const int fetches = sdk().fetchCount();
        QTest::qWait(40);
        QCOMPARE(sdk().fetchCount(), fetches);
    }
}

void DisconnectionTest::closeWindowDuringALongFetch()
{
    const LogRecorder log;
    {
        const CameraWindow w;
        w.connectCamera();
        sdk().holdFetches();
        QVERIFY(sdk().waitForHeldFetch(patience));
        sdk().clearCalls();
        std::thread releaser([] {
            std::this_thread::sleep_for(std::chrono::milliseconds(300));
            sdk().releaseFetches();
        });
        w.window->close();
        releaser.join();
        QCOMPARE(sdkCalls(), closing);
    }
    QVERIFY(log.contains(QtDebugMsg, "CaptureThread done"));
}

QTEST_MAIN(DisconnectionTest)
#include "tst_disconnection.moc"
