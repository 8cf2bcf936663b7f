// SPDX-License-Identifier: MIT
// What if an operation fails while the camera is connected or disconnected?
#include "tests/window/connectiontest.h"
#include "tests/window/pickingwindow.h"

#include <QLabel>
#include <QtTest>

class ConnectionFailuresTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void failure_data();
    void failure();
    void againAfterAFailure_data();
    void againAfterAFailure();
    void failedCloseLeavesItConnected();
    void failedStopIsNotLogged();
};

void ConnectionFailuresTest::cleanup()
{
    QCOMPARE(sdkViolations(), QStringList());
}

void ConnectionFailuresTest::failure_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<uint>("status");
    QTest::addColumn<QStringList>("calls");
    QTest::addColumn<QString>("critical"); ///< the critical line; empty = none
    QTest::addColumn<bool>("hasBox");
    QTest::addColumn<bool>("connects");
    QTest::addColumn<QString>("unlogged"); ///< the debug line that is missing
    const auto row = [](const char *name, const char *operation, std::uint32_t status,
                        const QStringList &calls, const char *critical, bool hasBox, bool connects,
                        const char *unlogged = "") {
        QTest::newRow(name) << operation << uint(status) << calls << critical << hasBox << connects
                            << unlogged;
    };
    const QStringList all = opening + setting + beginning;
    row("open", "OpenVELDIX", 1, choosing, "OpenVELDIX failure!", true, false);
    row("read mode, error value", "SetVELDIXReadMode", sdkError, all, "SetVELDIXReadMode 0 Failure",
        false, true);
    row("read mode, 1", "SetVELDIXReadMode", 1, all, "", false, true);
    row("read mode, one below the error value", "SetVELDIXReadMode", sdkError - 1, all, "", false,
        true);
    row("stream mode", "SetVELDIXStreamMode", 1, opening.mid(0, 5), "SetVELDIXStreamMode 1 Failure",
        false, false);
    row("stream mode, error value", "SetVELDIXStreamMode", sdkError, opening.mid(0, 5),
        "SetVELDIXStreamMode 1 Failure", false, false);
    row("init", "InitVELDIX", 1, opening, "InitVELDIX failure!", true, false);
    row("init, error value", "InitVELDIX", sdkError, opening, "InitVELDIX failure!", true, false);
    row("bits", "SetVELDIXBitsMode", 1, all, "", false, true, "SetVELDIXBitsMode 8");
    row("bin", "SetVELDIXBinMode", sdkError, all, "", false, true, "SetVELDIXBinMode 1 1");
    row("area", "SetVELDIXResolution", 1, all, "", false, true, "SetVELDIXResolution 0 0 1280 960");
    row("parameters", "SetVELDIXParam", 1, all, "", false, true, "SetVELDIXParam");
    row("live mode", "BeginVELDIXLive", 1, all, "BeginVELDIXLive failure", false, true);
}

void ConnectionFailuresTest::failure()
{
    QFETCH(QString, operation);
    QFETCH(uint, status);
    QFETCH(QStringList, calls);
    QFETCH(QString, critical);
    QFETCH(bool, hasBox);
    QFETCH(bool, connects);
    QFETCH(QString, unlogged);
    const CameraWindow w;
    sdk().clearCalls();
    sdk().setStatus(operation.toStdString(), status);
    const BoxWatcher boxes;
    const LogRecorder log;
    w.trigger("actionConnect");
    if (connects)
        QTRY_VERIFY(!sdkCalls({"BeginVELDIXLive"}).isEmpty());
    if (operation == "BeginVELDIXLive")
        QTRY_VERIFY(log.contains(QtDebugMsg, "CaptureThread done"));
    QCOMPARE(sdkCalls(), calls);
    QCOMPARE(log.texts(QtCriticalMsg), critical.isEmpty() ? QStringList() : QStringList(critical));
    QCOMPARE(boxes.boxes(), hasBox ? QList<Box>{failedBox(qPrintable(operation))} : QList<Box>());
    QCOMPARE(shownBy(w), connects ? connectedState : atRest(w));
    QStringList lines = connects ? settingLog : QStringList();
    if (!unlogged.isEmpty())
        lines = lines.filter(QRegularExpression("^(?!" + unlogged + ')'));
    QCOMPARE(sdkLog(log), lines);
    // Only a camera that was never opened leaves no handle.
    QCOMPARE(w.session().handle.get() == nullptr, operation == "OpenVELDIX");
}

void ConnectionFailuresTest::againAfterAFailure_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<int>("opened"); ///< cameras opened by the second try
    QTest::newRow("open") << "OpenVELDIX" << 1;
    QTest::newRow("stream mode") << "SetVELDIXStreamMode" << 2;
    QTest::newRow("init") << "InitVELDIX" << 2;
}

void ConnectionFailuresTest::againAfterAFailure()
{
    QFETCH(QString, operation);
    QFETCH(int, opened);
    const CameraWindow w;
    const BoxWatcher boxes;
    sdk().setStatus(operation.toStdString(), 1);
    w.trigger("actionConnect");
    QVERIFY(!w.session().camera.cameraConnected);
    sdk().setStatus(operation.toStdString(), 0);
    sdk().clearCalls();
    w.connectCamera();
    QCOMPARE(shownBy(w), connectedState);
    const QString camera = QStringLiteral("camera %1").arg(opened);
    QCOMPARE(sdkCalls(), (opening + setting + beginning).replaceInStrings("camera 1", camera));
    showFrame(starFrame({{640, 480}}));
    QVERIFY(w.waitForNewFrame());
    sdk().clearCalls();
    w.trigger("actionConnect");
    QCOMPARE(sdkCalls(), QStringList(closing).replaceInStrings("camera 1", camera));
    QCOMPARE(shownBy(w), atRest(w));
}

void ConnectionFailuresTest::failedCloseLeavesItConnected()
{
    const CameraWindow w;
    showFrame(starFrame({{640, 480}}));
    w.connectCamera();
    QVERIFY(w.waitForNewFrame());
    auto &image = w.child<QLabel>("label_showImg");
    auto &position = w.child<QLabel>("positionLabel");
    sendMouse(image, QEvent::MouseMove, {300, 400});
    QCOMPARE(position.text(), QStringLiteral("300.0,400.0"));
    QTRY_VERIFY(!isClear(magnified(w)));
    sdk().setStatus("CloseVELDIX", 1);
    sdk().clearCalls();
    const LogRecorder log;
    const BoxWatcher boxes;
    w.trigger("actionConnect");
    QCOMPARE(sdkCalls(), closing);
    QCOMPARE(sdkLog(log), QStringList("StopVELDIXLive"));
    QCOMPARE(shownBy(w), connectedState);
    QVERIFY(w.session().handle.get() != nullptr);
    // What follows the close is done all the same.
    QVERIFY(image.pixmap(Qt::ReturnByValue).isNull());
    QCOMPARE(position.text(), QString());
    QTRY_VERIFY(isClear(magnified(w)));
    QCOMPARE(w.session().frameRate.rate().whole, 0);
    QVERIFY(w.session().frameQueue.isEmpty());
    QTRY_VERIFY(log.contains(QtDebugMsg, "CaptureThread done"));
    // The next press disconnects again; this time it succeeds.
    sdk().setStatus("CloseVELDIX", 0);
    w.trigger("actionConnect");
    QCOMPARE(sdkCalls(), closing + closing);
    QCOMPARE(shownBy(w), atRest(w));
    QCOMPARE(boxes.boxes(), QList<Box>());
}

void ConnectionFailuresTest::failedStopIsNotLogged()
{
    const CameraWindow w;
    w.connectCamera();
    sdk().setStatus("StopVELDIXLive", 1);
    const LogRecorder log;
    w.trigger("actionConnect");
    QCOMPARE(sdkLog(log), QStringList("CloseVELDIX"));
    QCOMPARE(log.texts(QtCriticalMsg), QStringList());
    QCOMPARE(shownBy(w), atRest(w));
}

QTEST_MAIN(ConnectionFailuresTest)
#include "tst_connectionfailures.moc"
