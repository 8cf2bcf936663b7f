// SPDX-License-Identifier: MIT
// When do frames come, and what do the faults of the sky file do?
#include <unistd.h>

#include <QElapsedTimer>
#include <QTemporaryFile>
#include <QtTest>

#include "tests/support/patience.h"
#include "tests/virtualcamera/veldixfixture.h"
#include "virtualcamera/operationnames.h"

using virtualsky::operationNames;

namespace
{
// Calls one operation so that it would succeed; true = it reports success.
bool succeeds(int operation, void *handle)
{
    const VeldixLibrary &v = veldix();
    char id[38];
    VeldixFrame frame;
    switch (operation) {
    case 0:
        return v.initResource() == 0;
    case 1:
        return v.scan() == 1;
    case 2:
        return v.getId(0, id) == 0;
    case 3:
        return v.open("QUORVANDEL-V0001") != nullptr;
    case 4:
        return v.setReadMode(handle, 0) != failure;
    case 5:
        return v.setStreamMode(handle, 1) == 0;
    case 6:
        return v.init(handle) == 0;
    case 7:
        return v.setBits(handle, 8) == 0;
    case 8:
        return v.setBin(handle, 1, 1) == 0;
    case 9:
        return v.setResolution(handle, 0, 0, 1280, 960) == 0;
    case 10:
        return v.getParam(handle, exposureControl) != double(failure);
    case 11:
        return v.setParam(handle, exposureControl, 20000.0) == 0;
    case 12:
        return v.beginLive(handle) == 0;
    case 13:
        return frame.fetch(v, handle) == 0;
    case 14:
        return v.stopLive(handle) == 0;
    default:
        return v.close(handle) == 0;
    }
}
} // namespace

class OperationFaultsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QCOMPARE(veldix().initResource(), 0u); }
    void init() { setSky("[camera]\nunthrottled = true\n"); }

    void namedOperationFails_data();
    void namedOperationFails();
    void badHandlesAreRefused_data();
    void badHandlesAreRefused();
    void frameNeverBlocks();
    void frameRate();
    void slowFrames_data();
    void slowFrames();
    void unpluggedCamera();
    void channelsAndPictures_data();
    void channelsAndPictures();
    void changeTakesEffectWithTheNextFrame();
    void runRepeats();
    void badSkyFileIsToldOnce();
};

void OperationFaultsTest::namedOperationFails_data()
{
    QTest::addColumn<int>("operation");
    for (std::size_t i = 0; i < operationNames.size(); ++i)
        QTest::newRow(std::string(operationNames[i]).c_str()) << int(i);
}

void OperationFaultsTest::namedOperationFails()
{
    QFETCH(int, operation);
    void *const camera = veldix().openLive();
    QVERIFY(camera);
    const std::string name(operationNames[static_cast<std::size_t>(operation)]);
    setSky(("[camera]\nunthrottled = true\n[faults]\nfail = " + name + "\n").c_str());
    // Only the named one fails; Close comes last, since it would affect the others.
    for (int other = 0; other < 16; ++other) {
        if (other == 14 || other == 15)
            continue;
        QVERIFY2(succeeds(other, camera) == (other != operation),
                 std::string(operationNames[static_cast<std::size_t>(other)]).c_str());
    }
    QCOMPARE(succeeds(14, camera), operation != 14);
    QCOMPARE(succeeds(15, camera), operation != 15);
    if (operation == 1)
        QCOMPARE(veldix().scan(), -1);
    init();
    QCOMPARE(veldix().close(camera) == 0u, operation == 15);
}

void OperationFaultsTest::badHandlesAreRefused_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("null") << 0;
    QTest::newRow("never given") << 1;
    QTest::newRow("closed") << 2;
}

void OperationFaultsTest::badHandlesAreRefused()
{
    QFETCH(int, kind);
    void *handle = nullptr;
    if (kind == 1)
        handle = &kind;
    if (kind == 2) {
        handle = veldix().openLive();
        QCOMPARE(veldix().close(handle), 0u);
        QVERIFY(veldix().openLive() != handle);
    }
    for (int operation = 4; operation < 16; ++operation)
        QVERIFY(!succeeds(operation, handle));
    QCOMPARE(veldix().setBits(handle, 8), failure);
    QCOMPARE(veldix().getParam(handle, 8), 4294967295.0);
}

void OperationFaultsTest::frameNeverBlocks()
{
    setSky("\n");
    void *const camera = veldix().openLive();
    QCOMPARE(veldix().setParam(camera, exposureControl, 60e6), 0u);
    VeldixFrame frame;
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 100; ++i)
        QVERIFY(frame.fetch(veldix(), camera) != 0u);
    QVERIFY(timer.elapsed() < patience);
    // A shorter exposure replaces the running one.
    QCOMPARE(veldix().setParam(camera, exposureControl, 1000.0), 0u);
    QVERIFY(comesTrue([&] { return frame.fetch(veldix(), camera) == 0u; }));
    QCOMPARE(veldix().close(camera), 0u);
}

void OperationFaultsTest::frameRate()
{
    setSky("\n");
    QElapsedTimer timer;
    timer.start();
    void *const camera = veldix().openLive();
    QCOMPARE(veldix().setParam(camera, exposureControl, 180000.0), 0u);
    VeldixFrame frame;
    // 180 ms and 13.3 ms of read-out, counted from the start: never early, however often it is
    // polled.
    for (int i = 1; i <= 6; ++i) {
        while (frame.fetch(veldix(), camera) != 0u)
            QTest::qSleep(1);
        QVERIFY2(timer.elapsed() >= i * 193, qPrintable(QString::number(timer.elapsed())));
    }
    QCOMPARE(veldix().close(camera), 0u);
}

void OperationFaultsTest::slowFrames_data()
{
    QTest::addColumn<QByteArray>("section");
    QTest::newRow("exposures") << QByteArray("");
    QTest::newRow("unthrottled") << QByteArray("[camera]\nunthrottled = true\n");
}

void OperationFaultsTest::slowFrames()
{
    QFETCH(QByteArray, section);
    setSky((section + "[faults]\nslow = 600\n").constData());
    void *const camera = veldix().openLive();
    QCOMPARE(veldix().setParam(camera, exposureControl, 1000.0), 0u);
    VeldixFrame frame;
    QTest::qSleep(100);
    QVERIFY(frame.fetch(veldix(), camera) != 0u);
    setSky((section + "[faults]\nslow = 0\n").constData());
    QCOMPARE(frame.fetch(veldix(), camera), 0u);
    QCOMPARE(veldix().close(camera), 0u);
}

void OperationFaultsTest::unpluggedCamera()
{
    void *const camera = veldix().openLive();
    VeldixFrame frame;
    QCOMPARE(frame.fetch(veldix(), camera), 0u);
    setSky("[camera]\nunthrottled = true\n[faults]\nunplugged = true\n");
    QVERIFY(frame.fetch(veldix(), camera) != 0u);
    QCOMPARE(veldix().scan(), 0);
    QVERIFY(!veldix().open("QUORVANDEL-V0001"));
    QCOMPARE(veldix().setParam(camera, exposureControl, 1000.0), failure);
    QCOMPARE(veldix().beginLive(camera), failure);
    // Plugged in again, the open camera continues.
    init();
    QCOMPARE(frame.fetch(veldix(), camera), 0u);
    setSky("[faults]\nunplugged = true\n");
    QCOMPARE(veldix().stopLive(camera), 0u);
    QCOMPARE(veldix().close(camera), 0u);
}

void OperationFaultsTest::channelsAndPictures_data()
{
    QTest::addColumn<QByteArray>("sky");
    QTest::addColumn<int>("channels");
    QTest::addColumn<int>("value"); // of every sample, -1 = a sky
    QTest::newRow("one channel") << QByteArray("") << 1 << -1;
    QTest::newRow("three channels") << QByteArray("channels = 3\n") << 3 << -1;
    QTest::newRow("black") << QByteArray("[faults]\npicture = black\n") << 1 << 0;
    QTest::newRow("saturated, three channels")
        << QByteArray("channels = 3\n[faults]\npicture = saturated\n") << 3 << 255;
}

void OperationFaultsTest::channelsAndPictures()
{
    QFETCH(QByteArray, sky);
    QFETCH(int, channels);
    QFETCH(int, value);
    setSky(("[camera]\nunthrottled = true\nlabel = false\n" + sky).constData());
    void *const camera = veldix().openLive();
    VeldixFrame frame;
    QCOMPARE(frame.fetch(veldix(), camera), 0u);
    QCOMPARE(int(frame.channels), channels);
    const auto end = frame.buffer.begin() + 1280 * 960 * channels;
    if (value >= 0)
        QVERIFY(std::all_of(frame.buffer.begin(), end, [value](int v8) { return v8 == value; }));
    else
        QVERIFY(std::count(frame.buffer.begin(), end, 255) > 20 * channels);
    QCOMPARE(veldix().close(camera), 0u);
}

void OperationFaultsTest::changeTakesEffectWithTheNextFrame()
{
    void *const camera = veldix().openLive();
    VeldixFrame frame;
    for (int i = 0; i < 10; ++i) {
        setSky("[camera]\nunthrottled = true\n[faults]\npicture = black\n");
        QCOMPARE(frame.fetch(veldix(), camera), 0u);
        QCOMPARE(int(frame.buffer[0]), 0);
        setSky("[camera]\nunthrottled = true\n[faults]\npicture = saturated\n");
        QCOMPARE(frame.fetch(veldix(), camera), 0u);
        QCOMPARE(int(frame.buffer[0]), 255);
    }
    QCOMPARE(veldix().close(camera), 0u);
}

void OperationFaultsTest::runRepeats()
{
    setSky("[camera]\nunthrottled = true\n[time]\ndate = 2024-05-23T12:00:00Z\nrunning = false\n");
    void *const camera = veldix().openLive();
    VeldixFrame first, second, again;
    QCOMPARE(first.fetch(veldix(), camera), 0u);
    QCOMPARE(second.fetch(veldix(), camera), 0u);
    QVERIFY(first.buffer != second.buffer);
    QCOMPARE(veldix().beginLive(camera), 0u);
    QCOMPARE(again.fetch(veldix(), camera), 0u);
    QVERIFY(first.buffer == again.buffer);
    QCOMPARE(again.fetch(veldix(), camera), 0u);
    QVERIFY(second.buffer == again.buffer);
    QCOMPARE(veldix().close(camera), 0u);
}

void OperationFaultsTest::badSkyFileIsToldOnce()
{
    void *const camera = veldix().openLive();
    QTemporaryFile told;
    QVERIFY(told.open());
    const int standardError = dup(STDERR_FILENO);
    QVERIFY(dup2(told.handle(), STDERR_FILENO) >= 0);
    VeldixFrame frame;
    setSky("[site]\nlatitude = 95\n");
    const bool goesOn = frame.fetch(veldix(), camera) == 0 && frame.fetch(veldix(), camera) == 0;
    dup2(standardError, STDERR_FILENO);
    ::close(standardError);
    QVERIFY(goesOn); // still without throttle, as in the last good file
    QVERIFY(told.seek(0));
    QCOMPARE(QString::fromUtf8(told.readAll()),
             QStringLiteral("virtual camera: %1: line 2: latitude: must lie between -90 and 90; "
                            "the sky stays as it was\n")
                 .arg(skyFolder().path()));
    QCOMPARE(veldix().close(camera), 0u);
}

QTEST_GUILESS_MAIN(OperationFaultsTest)
#include "tst_operationfaults.moc"
