// SPDX-License-Identifier: MIT
// How is the camera found, opened and set up?
#include "tests/window/connectiontest.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QSlider>
#include <QtTest>
#include <cmath>
#include <limits>
#include <memory>
#include <vector>

class ConnectionTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void startUp();
    void startUpFails();
    void notReady();
    void connectAndDisconnect();
    void connectedBeforeItIsSet();
    void choice_data();
    void choice();
    void manyCameras_data();
    void manyCameras();
    void openingIsNotReached_data();
    void openingIsNotReached();
    void readBack_data();
    void readBack();
    void keptParametersAreSentAgain();
};

void ConnectionTest::cleanup()
{
    QCOMPARE(sdkViolations(), QStringList());
}

void ConnectionTest::startUp()
{
    const LogRecorder log;
    const CameraWindow w;
    QCOMPARE(sdkCalls(), QStringList("InitVELDIXResource()"));
    QVERIFY(log.contains(QtDebugMsg, "InitVELDIXSDK success"));
    QVERIFY(w.session().camera.sdkReady);
    QCOMPARE(shownBy(w), atRest(w));
}

void ConnectionTest::startUpFails()
{
    const LogRecorder log;
    const CameraWindow w({}, [] { sdk().setStatus("InitVELDIXResource", 1); });
    QVERIFY(log.contains(QtCriticalMsg, "InitVELDIXResource: failed"));
    QVERIFY(!log.contains(QtDebugMsg, "InitVELDIXSDK success"));
    QVERIFY(!w.session().camera.sdkReady);
}

void ConnectionTest::notReady()
{
    const CameraWindow w({}, [] { sdk().setStatus("InitVELDIXResource", sdkError); });
    sdk().clearCalls();
    const BoxWatcher boxes;
    const LogRecorder log;
    w.trigger("actionConnect");
    QTest::qWait(50);
    QCOMPARE(sdkCalls(), QStringList());
    QCOMPARE(boxes.boxes(), QList<Box>());
    QCOMPARE(log.texts(QtDebugMsg) + log.texts(QtCriticalMsg), QStringList());
    QCOMPARE(shownBy(w), atRest(w));
}

void ConnectionTest::connectAndDisconnect()
{
    const CameraWindow w;
    const QString plainTitle = w.window->windowTitle();
    sdk().clearCalls();
    const BoxWatcher boxes;
    const LogRecorder log;
    w.connectCamera();
    QCOMPARE(sdkCalls(), opening + setting + beginning);
    QCOMPARE(sdkLog(log), settingLog);
    QCOMPARE(log.texts(QtCriticalMsg), QStringList());
    QCOMPARE(shownBy(w), connectedState);
    QCOMPARE(w.window->step(), 1);
    const auto windowThread = std::this_thread::get_id();
    for (const SdkCall &call : sdk().calls())
        QCOMPARE(call.thread == windowThread, call.text != "BeginVELDIXLive(camera 1)");
    QTRY_VERIFY(log.contains(QtDebugMsg, "CaptureThread start..."));
    QTRY_VERIFY(sdk().fetchCount() > 0);

    sdk().clearCalls();
    w.trigger("actionConnect");
    QCOMPARE(sdkCalls(), closing);
    QCOMPARE(sdkLog(log), settingLog + QStringList({"StopVELDIXLive", "CloseVELDIX"}));
    Shown rest = atRest(w);
    QCOMPARE(shownBy(w), rest);
    QVERIFY(w.session().camera.sdkReady);
    QVERIFY(w.session().handle.get() == nullptr);
    QTRY_VERIFY(log.contains(QtDebugMsg, "CaptureThread done"));
    QCOMPARE(boxes.boxes(), QList<Box>());
    // Disconnect does not restore the title.
    QCOMPARE(rest.title, idTitle);
    QVERIFY(plainTitle != idTitle);
}

/// A camera that refuses a format or delays the setting is connected all the same.
void ConnectionTest::connectedBeforeItIsSet()
{
    const CameraWindow w;
    std::unique_ptr<Shown> early;
    sdk().observe("SetVELDIXBitsMode",
                  [&w, &early] { early = std::make_unique<Shown>(shownBy(w)); });
    w.connectCamera();
    QVERIFY(early);
    QCOMPARE(*early, connectedState);
}

void ConnectionTest::choice_data()
{
    QTest::addColumn<QStringList>("ids");
    QTest::addColumn<int>("failingId");
    QTest::addColumn<bool>("terminated");
    QTest::addColumn<QString>("opened"); ///< empty = none
    QTest::addColumn<int>("read");       ///< IDs that were requested
    const auto row = [](const char *name, const QStringList &ids, const QString &opened, int read,
                        int failingId = -1, bool terminated = true) {
        QTest::newRow(name) << ids << failingId << terminated << opened << read;
    };
    const QString fits = "QUORVANDEL-" + QString(26, '7'); // 37 characters
    row("one", {"QUORVANDEL-V0001"}, "QUORVANDEL-V0001", 1);
    row("the lower index of two", {"QUORVANDEL-B", "QUORVANDEL-A"}, "QUORVANDEL-B", 1);
    row("behind another model", {"OTHER-1", "QUORVANDEL-2"}, "QUORVANDEL-2", 2);
    row("behind one that cannot be read", {"QUORVANDEL-1", "QUORVANDEL-2"}, "QUORVANDEL-2", 2, 0);
    row("none can be read", {"QUORVANDEL-1"}, "", 1, 0);
    row("no dash", {"QUORVANDEL"}, "", 1);
    row("two dashes", {"QUORVANDEL-X-123"}, "", 1);
    row("empty serial", {"QUORVANDEL-"}, "QUORVANDEL-", 1);
    row("dash alone", {"-"}, "", 1);
    row("empty ID", {""}, "", 1);
    row("lower case", {"quorvandel-1"}, "", 1);
    row("longer model", {"QUORVANDELL-1"}, "", 1);
    row("shorter model", {"QUORVANDE-1"}, "", 1);
    row("space before", {" QUORVANDEL-1"}, "", 1);
    row("other models only", {"A-1", "B-2", "C-3"}, "", 3);
    row("third of three", {"A-1", "", "QUORVANDEL-3"}, "QUORVANDEL-3", 3);
    row("as long as fits", {fits}, fits, 1);
    row("longer than the announced size", {fits + "89"}, fits + "89", 1);
    row("not terminated", {"QUORVANDEL-1"}, "QUORVANDEL-1", 1, -1, false);
    row("long and not terminated", {fits + "8"}, fits + '8', 1, -1, false);
    row("shorter after longer", {"OTHERMODEL-LONGSERIAL", "QUORVANDEL-5"}, "QUORVANDEL-5", 2, -1,
        false);
}

void ConnectionTest::choice()
{
    QFETCH(QStringList, ids);
    QFETCH(int, failingId);
    QFETCH(bool, terminated);
    QFETCH(QString, opened);
    QFETCH(int, read);
    const CameraWindow w;
    std::vector<std::string> cameras;
    for (const QString &id : ids)
        cameras.push_back(id.toStdString());
    sdk().setCameras(cameras, terminated);
    sdk().failId(failingId);
    const BoxWatcher boxes;
    w.trigger("actionConnect");
    QCOMPARE(sdkCalls({"GetVELDIXId"}).size(), read);
    QCOMPARE(sdkCalls({"OpenVELDIX"}),
             opened.isEmpty() ? QStringList() : QStringList("OpenVELDIX(" + opened + ')'));
    QCOMPARE(boxes.boxes(), opened.isEmpty() ? QList<Box>{notFound} : QList<Box>());
    QCOMPARE(bool(w.session().camera.cameraConnected), !opened.isEmpty());
    if (!opened.isEmpty())
        QCOMPARE(w.window->windowTitle(), "Quorvandel - ID:" + opened);
}

void ConnectionTest::manyCameras_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("read"); ///< IDs that are requested
    QTest::newRow("one less than the limit") << 1023 << 1023;
    QTest::newRow("the limit") << 1024 << 1024;
    QTest::newRow("one more") << 1025 << 1024;
    QTest::newRow("most") << std::numeric_limits<int>::max() << 1024;
}

/// A library that reports an impossible number of cameras is not asked for all the IDs.
void ConnectionTest::manyCameras()
{
    QFETCH(int, count);
    QFETCH(int, read);
    const CameraWindow w;
    sdk().setCameras({"OTHER-1"});
    sdk().setCameraCount(count);
    sdk().clearCalls();
    const BoxWatcher boxes;
    w.trigger("actionConnect");
    QStringList calls{"ScanVELDIX()"};
    for (int index = 0; index < read; ++index)
        calls.append(QStringLiteral("GetVELDIXId(%1)").arg(index));
    QCOMPARE(sdkCalls(), calls);
    QCOMPARE(boxes.boxes(), QList<Box>{notFound});
    QCOMPARE(shownBy(w), atRest(w));
}

void ConnectionTest::openingIsNotReached_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("no camera") << 0;
    QTest::newRow("minus one") << -1;
    QTest::newRow("the error value") << std::int32_t(sdkError);
    QTest::newRow("most negative") << std::numeric_limits<int>::min();
}

void ConnectionTest::openingIsNotReached()
{
    QFETCH(int, count);
    const CameraWindow w;
    sdk().setCameraCount(count);
    sdk().clearCalls();
    const BoxWatcher boxes;
    const LogRecorder log;
    w.trigger("actionConnect");
    QCOMPARE(boxes.boxes(), QList<Box>{notFound});
    QCOMPARE(sdkCalls(), QStringList("ScanVELDIX()"));
    QCOMPARE(log.texts(QtCriticalMsg) + log.texts(QtDebugMsg), QStringList());
    QCOMPARE(shownBy(w), atRest(w));
}

void ConnectionTest::readBack_data()
{
    QTest::addColumn<double>("exposure");
    QTest::addColumn<double>("gain");
    QTest::addColumn<int>("shownExposure"); ///< the edit boxes show what the sliders cannot
    QTest::addColumn<int>("shownGain");
    QTest::newRow("plain") << 120000.0 << 17.0 << 120 << 17;
    QTest::newRow("cut, not rounded") << 20999.9 << 3.99 << 20 << 3;
    QTest::newRow("at the sliders' ends") << 500000.0 << 100.0 << 500 << 100;
    QTest::newRow("beyond the sliders' ends") << 750000.0 << 200.0 << 750 << 200;
    QTest::newRow("zero") << 0.0 << 0.0 << 0 << 0;
    QTest::newRow("less than a millisecond") << 999.0 << 0.5 << 0 << 0;
    QTest::newRow("negative") << -1500.0 << -2.7 << -1 << -2;
    QTest::newRow("the error value as a number")
        << 4294967295.0 << 4294967295.0 << 2147483 << 2147483647;
    QTest::newRow("not a number") << std::nan("") << std::nan("") << 0 << 0;
}

void ConnectionTest::readBack()
{
    QFETCH(double, exposure);
    QFETCH(double, gain);
    QFETCH(int, shownExposure);
    QFETCH(int, shownGain);
    const CameraWindow w;
    sdk().setParam(8, exposure);
    sdk().setParam(6, gain);
    std::vector<std::unique_ptr<QSignalSpy>> spies;
    for (const char *const slider : {"sliderExpose", "sliderGain"})
        spies.push_back(
            std::make_unique<QSignalSpy>(&w.child<QSlider>(slider), SIGNAL(valueChanged(int))));
    for (const char *const edit : {"lineEditExpose", "lineEditGain"})
        spies.push_back(
            std::make_unique<QSignalSpy>(&w.child<QLineEdit>(edit), SIGNAL(textChanged(QString))));
    w.connectCamera();
    for (const auto &spy : spies)
        QCOMPARE(spy->count(), 0);
    QCOMPARE(sdkCalls({"SetVELDIXParam"}), setting.mid(5));
    QVERIFY(w.session().camera.exposure == exposure || std::isnan(exposure));
    QVERIFY(w.session().camera.gain == gain || std::isnan(gain));
    QCOMPARE(w.child<QLineEdit>("lineEditExpose").text(), QString::number(shownExposure));
    QCOMPARE(w.child<QLineEdit>("lineEditGain").text(), QString::number(shownGain));
    QCOMPARE(w.child<QSlider>("sliderExpose").value(), qBound(1, shownExposure, 500));
    QCOMPARE(w.child<QSlider>("sliderGain").value(), qBound(1, shownGain, 100));
}

/// Traffic and speed are set at every connection; exposure and gain remain the camera's.
void ConnectionTest::keptParametersAreSentAgain()
{
    const CameraWindow w;
    w.connectCamera();
    w.child<QSlider>("sliderTraffic").setValue(200);
    w.child<QSlider>("sliderSpeed").setValue(2);
    w.child<QSlider>("sliderExpose").setValue(333);
    w.trigger("actionConnect");
    sdk().setParam(8, 44000);
    sdk().clearCalls();
    w.connectCamera();
    QCOMPARE(sdkCalls({"SetVELDIXParam"}),
             QStringList({"SetVELDIXParam(camera 2, 12, 200)", "SetVELDIXParam(camera 2, 9, 2)"}));
    QCOMPARE(w.child<QSlider>("sliderExpose").value(), 44);
    QCOMPARE(w.session().camera.exposure, 44000.0);
}

QTEST_MAIN(ConnectionTest)
#include "tst_connection.moc"
