// SPDX-License-Identifier: MIT
// Does the program cope with a camera library that fails now and then?
#include "tests/reliability/sdkwindow.h"
#include "tests/support/logrecorder.h"

#include <QAction>
#include <QtTest>
#include <atomic>
#include <memory>
#include <random>

namespace
{
/// Which calls of an operation fail, counted from 1.
struct Calls {
    int first, last;
    int every = 1; ///< of those calls, only each multiple of this
    bool contains(int n) const { return n >= first && n <= last && n % every == 0; }
};
constexpr int noEnd = 1 << 30;

struct Pattern {
    const char *name;
    Calls failing;
};

/// From now on those calls of `operation` return `status`, the others 0. The counter outlives the
/// window, whose capture thread may call until the very end.
void failCalls(const QString &operation, const Calls &failing, std::uint32_t status)
{
    const auto count = std::make_shared<std::atomic<int>>(0);
    const std::string name = operation.toStdString();
    sdk().observe(name, [=] { sdk().setStatus(name, failing.contains(++*count) ? status : 0); });
}

bool pictureComes(const CameraWindow &w)
{
    return newPicture(w, QSize(320, 240));
}
} // namespace
Q_DECLARE_METATYPE(Calls)

class SdkIntermittentTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QCOMPARE(sdkViolations(), QStringList()); }
    void parameters_data();
    void parameters();
    void opening_data();
    void opening();
    void closing_data();
    void closing();
    void fetches_data();
    void fetches();
    void bogusFrames_data();
    void bogusFrames();
    void bogusFramesBetweenGoodOnes();
};

void SdkIntermittentTest::parameters_data()
{
    QTest::addColumn<Calls>("failing");
    for (int n = 1; n <= 6; ++n)
        QTest::addRow("call %d alone", n) << Calls{n, n};
    QTest::newRow("from the second on") << Calls{2, noEnd};
    QTest::newRow("every second") << Calls{1, noEnd, 2};
}

/// Connect sets two parameters and the sliders four: a failed call does not affect the next one,
/// and the requested value stays shown.
void SdkIntermittentTest::parameters()
{
    QFETCH(Calls, failing);
    const CameraWindow w({}, giveGoodFrames);
    failCalls("SetVELDIXParam", failing, 1);
    const BoxWatcher boxes;
    const LogRecorder log;
    w.trigger("actionConnect");
    QVERIFY(pictureComes(w));
    const struct {
        const char *slider;
        int control, value;
        double perUnit;
        double CameraState::*stored;
    } moves[] = {{"sliderExpose", 8, 123, 1000, &CameraState::exposure},
                 {"sliderGain", 6, 45, 1, &CameraState::gain},
                 {"sliderTraffic", 12, 67, 1, &CameraState::usbTraffic},
                 {"sliderSpeed", 9, 2, 1, &CameraState::speed}};
    QStringList calls{"SetVELDIXParam(camera 1, 12, 30)", "SetVELDIXParam(camera 1, 9, 0)"};
    for (const auto &move : moves) {
        w.child<QSlider>(move.slider).setValue(move.value);
        calls.append(QStringLiteral("SetVELDIXParam(camera 1, %1, %2)")
                         .arg(move.control)
                         .arg(int(move.value * move.perUnit)));
    }
    QCOMPARE(sdkCalls({"SetVELDIXParam"}), calls);
    for (const auto &move : moves) {
        QCOMPARE(w.child<QSlider>(move.slider).value(), move.value);
        QCOMPARE(w.session().camera.*move.stored, move.value * move.perUnit);
    }
    QStringList lines;
    if (!failing.contains(1))
        lines.append("SetVELDIXParam CONTROL_USBTRAFFIC 30");
    if (!failing.contains(2))
        lines.append("SetVELDIXParam CONTROL_SPEED 0");
    QCOMPARE(log.texts(QtDebugMsg).filter("SetVELDIXParam"), lines);
    QCOMPARE(log.texts(QtCriticalMsg), QStringList());
    QCOMPARE(boxes.boxes(), QList<Box>());
    QVERIFY(pictureComes(w));
    QVERIFY(worksAgain(w));
}

void SdkIntermittentTest::opening_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<bool>("hasBox");
    QTest::addColumn<bool>("connects");
    QTest::addColumn<QString>("critical");
    QTest::addColumn<Calls>("failing");
    const struct {
        const char *operation;
        bool hasBox, connects;
        const char *critical;
    } rows[] = {{"OpenVELDIX", true, false, "OpenVELDIX failure!"},
                {"SetVELDIXStreamMode", false, false, "SetVELDIXStreamMode 1 Failure"},
                {"InitVELDIX", true, false, "InitVELDIX failure!"},
                {"BeginVELDIXLive", false, true, "BeginVELDIXLive failure"}};
    const Pattern patterns[] = {{"the first alone", {1, 1}},
                                {"the second alone", {2, 2}},
                                {"the second and third", {2, 3}},
                                {"every second", {1, noEnd, 2}}};
    for (const auto &row : rows)
        for (const Pattern &pattern : patterns)
            QTest::addRow("%s fails, %s", row.operation, pattern.name)
                << row.operation << row.hasBox << row.connects << row.critical << pattern.failing;
}

/// Each Connect depends on its own calls only, not on the result of the one before.
void SdkIntermittentTest::opening()
{
    QFETCH(QString, operation);
    QFETCH(bool, hasBox);
    QFETCH(bool, connects);
    QFETCH(QString, critical);
    QFETCH(Calls, failing);
    const CameraWindow w({}, giveGoodFrames);
    failCalls(operation, failing, sdkError);
    for (int attempt = 1; attempt <= 4; ++attempt) {
        const bool fails = failing.contains(attempt);
        const BoxWatcher boxes;
        const LogRecorder log;
        w.trigger("actionConnect");
        QCOMPARE(bool(w.session().camera.cameraConnected), connects || !fails);
        QCOMPARE(boxes.boxes(),
                 fails && hasBox ? QList<Box>{failedBox(qPrintable(operation))} : QList<Box>());
        QTRY_COMPARE(log.texts(QtCriticalMsg), fails ? QStringList(critical) : QStringList());
        if (!fails)
            QVERIFY(pictureComes(w));
        if (w.session().camera.cameraConnected)
            w.trigger("actionConnect");
        QVERIFY(!w.session().camera.cameraConnected);
        QCOMPARE(log.texts(QtCriticalMsg).size(), fails ? 1 : 0);
    }
    QCOMPARE(sdkCalls({operation}).size(), 4);
}

void SdkIntermittentTest::closing_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<Calls>("failing");
    const Pattern patterns[] = {{"the first alone", {1, 1}},
                                {"the second alone", {2, 2}},
                                {"the second and third", {2, 3}},
                                {"every second", {1, noEnd, 2}}};
    for (const char *const operation : {"StopVELDIXLive", "CloseVELDIX"})
        for (const Pattern &pattern : patterns)
            QTest::addRow("%s fails, %s", operation, pattern.name) << operation << pattern.failing;
}

/// A Disconnect whose close fails leaves the camera connected; the next one tries again.
void SdkIntermittentTest::closing()
{
    QFETCH(QString, operation);
    QFETCH(Calls, failing);
    const CameraWindow w({}, giveGoodFrames);
    failCalls(operation, failing, sdkError);
    const BoxWatcher boxes;
    const LogRecorder log;
    for (int attempt = 1; attempt <= 5; ++attempt) {
        if (!w.session().camera.cameraConnected) {
            w.trigger("actionConnect");
            QVERIFY(pictureComes(w));
        }
        w.trigger("actionConnect");
        const bool staysOpen = operation == "CloseVELDIX" && failing.contains(attempt);
        QCOMPARE(bool(w.session().camera.cameraConnected), staysOpen);
        QCOMPARE(w.child<QAction>("actionConnect").text(),
                 QString(staysOpen ? "Disconnect" : "Connect"));
    }
    QCOMPARE(sdkCalls({operation}).size(), 5);
    QCOMPARE(log.texts(QtCriticalMsg), QStringList());
    QCOMPARE(boxes.boxes(), QList<Box>());
    sdk().observe(operation.toStdString(), {});
    sdk().setStatus(operation.toStdString(), 0);
    QVERIFY(worksAgain(w));
}

void SdkIntermittentTest::fetches_data()
{
    QTest::addColumn<Calls>("failing");
    QTest::addColumn<uint>("status");
    for (const std::uint32_t status : {1U, sdkError}) {
        QTest::addRow("every second with %x", status) << Calls{1, noEnd, 2} << uint(status);
        QTest::addRow("every seventh with %x", status) << Calls{1, noEnd, 7} << uint(status);
        QTest::addRow("the first thirty with %x", status) << Calls{1, 30} << uint(status);
        QTest::addRow("thirty after ten with %x", status) << Calls{11, 40} << uint(status);
    }
}

/// A failed fetch means that the frame is not there yet: the next one is shown.
void SdkIntermittentTest::fetches()
{
    QFETCH(Calls, failing);
    QFETCH(uint, status);
    const CameraWindow w({}, giveGoodFrames);
    failCalls("GetVELDIXLiveFrame", failing, status);
    const BoxWatcher boxes;
    const LogRecorder log;
    w.trigger("actionConnect");
    for (int picture = 0; picture < 5; ++picture)
        QVERIFY(pictureComes(w));
    QTRY_VERIFY(sdk().fetchCount() > 50);
    QVERIFY(pictureComes(w));
    QCOMPARE(log.texts(QtCriticalMsg), QStringList());
    QCOMPARE(boxes.boxes(), QList<Box>());
    QCOMPARE(sdkCalls({"BeginVELDIXLive"}).size(), 1);
    w.trigger("actionConnect");
    QVERIFY(worksAgain(w));
}

void SdkIntermittentTest::bogusFrames_data()
{
    QTest::addColumn<uint>("width");
    QTest::addColumn<uint>("height");
    QTest::addColumn<uint>("channels");
    QTest::newRow("no size") << 0U << 0U << 1U;
    QTest::newRow("two channels") << 640U << 480U << 2U;
    QTest::newRow("larger than the buffer") << 1281U << 960U << 3U;
    QTest::newRow("largest") << sdkError << sdkError << sdkError;
}

/// For a while, every fetch gives one; the window goes on, and good frames are shown again.
void SdkIntermittentTest::bogusFrames()
{
    QFETCH(uint, width);
    QFETCH(uint, height);
    QFETCH(uint, channels);
    const CameraWindow w({}, giveGoodFrames);
    const BoxWatcher boxes;
    w.trigger("actionConnect");
    QVERIFY(pictureComes(w));
    const LogRecorder log;
    int ticks = 0;
    QTimer tick;
    connect(&tick, &QTimer::timeout, [&ticks] { ++ticks; });
    tick.start(20);
    sdk().setFrameInterval(0);
    sdk().setFrame(width, height, channels, {1, 2, 3});
    const int before = sdk().fetchCount();
    QTRY_VERIFY(sdk().fetchCount() > before + 100 && ticks > 10);
    QCOMPARE(log.texts(QtCriticalMsg).size(), 1); // however many there were
    giveGoodFrames();
    QVERIFY(pictureComes(w));
    QVERIFY(w.session().camera.cameraConnected);
    QCOMPARE(boxes.boxes(), QList<Box>());
    w.trigger("actionConnect");
    QVERIFY(worksAgain(w));
}

/// Seeded: the same mixture in every run.
void SdkIntermittentTest::bogusFramesBetweenGoodOnes()
{
    const CameraWindow w({}, giveGoodFrames);
    sdk().setFrameInterval(0);
    const auto random = std::make_shared<std::mt19937>(7);
    sdk().observe("GetVELDIXLiveFrame", [random] {
        const std::vector<std::uint8_t> grey(320 * 240, 40);
        const unsigned kind = (*random)() % 4;
        sdk().setFrame(kind == 0 ? 0 : 320, 240, kind == 1 ? 2 : 1, grey);
        sdk().setStatus("GetVELDIXLiveFrame", kind == 2 ? 1 : 0);
    });
    const BoxWatcher boxes;
    const LogRecorder log;
    w.trigger("actionConnect");
    for (int picture = 0; picture < 20; ++picture) {
        QVERIFY(newPicture(w));
        QCOMPARE(w.child<QLabel>("label_showImg").pixmap(Qt::ReturnByValue).size(),
                 QSize(320, 240));
    }
    QCOMPARE(boxes.boxes(), QList<Box>());
    sdk().observe("GetVELDIXLiveFrame", {});
    sdk().setStatus("GetVELDIXLiveFrame", 0);
    giveGoodFrames();
    QVERIFY(pictureComes(w));
    w.trigger("actionConnect");
    QVERIFY(worksAgain(w));
}

QTEST_MAIN(SdkIntermittentTest)
#include "tst_sdkintermittent.moc"
