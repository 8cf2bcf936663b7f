// SPDX-License-Identifier: MIT
// Which frame rate follows from two frame times?
#include "camera/session.h"
#include "tests/support/frameratemeterprobe.h"

#include <QtTest>
#include <algorithm>
#include <limits>

using Int = std::numeric_limits<std::int32_t>;

class FrameRateTest : public QObject
{
    Q_OBJECT

private slots:
    void rate_data();
    void rate();
    void elapsed_data();
    void elapsed();
    void cut_data();
    void cut();
    void defaults();
};

void FrameRateTest::rate_data()
{
    QTest::addColumn<int>("milliseconds");
    QTest::addColumn<int>("whole");
    QTest::addColumn<int>("tenths");
    QTest::newRow("one millisecond") << 1 << 1000 << 0;
    QTest::newRow("tenths are cut") << 7 << 142 << 8;
    QTest::newRow("30 a second") << 33 << 30 << 3;
    QTest::newRow("9.7 a second") << 103 << 9 << 7;
    QTest::newRow("exactly ten") << 100 << 10 << 0;
    QTest::newRow("one a second") << 1000 << 1 << 0;
    QTest::newRow("a tenth a second") << 10000 << 0 << 1;
    QTest::newRow("less than a tenth") << 10001 << 0 << 0;
    QTest::newRow("longest") << Int::max() << 0 << 0;
    QTest::newRow("clock set back by 1") << -1 << -1000 << 0;
    QTest::newRow("clock set back by 3") << -3 << -333 << -3;
    QTest::newRow("clock set back by two seconds") << -2000 << 0 << -5;
    QTest::newRow("clock set back furthest") << Int::min() << 0 << 0;
    QTest::newRow("same millisecond saturates") << 0 << Int::max() << Int::min();
}

void FrameRateTest::rate()
{
    QFETCH(int, milliseconds);
    const FrameRate found = frameRate(milliseconds);
    QTEST(found.whole, "whole");
    QTEST(found.tenths, "tenths");
}

void FrameRateTest::elapsed_data()
{
    QTest::addColumn<int>("earlier");
    QTest::addColumn<int>("later");
    QTest::addColumn<int>("difference");
    QTest::newRow("forwards") << 100 << 133 << 33;
    QTest::newRow("none") << 5 << 5 << 0;
    QTest::newRow("backwards") << 133 << 100 << -33;
    QTest::newRow("across the sign") << -10 << 20 << 30;
    QTest::newRow("across the wrap") << Int::max() - 9 << Int::min() + 10 << 20;
    QTest::newRow("back across the wrap") << Int::min() + 10 << Int::max() - 9 << -20;
}

void FrameRateTest::elapsed()
{
    QFETCH(int, earlier);
    QFETCH(int, later);
    QTEST(elapsedBetween(earlier, later), "difference");
}

void FrameRateTest::cut_data()
{
    QTest::addColumn<qint64>("milliseconds");
    QTest::addColumn<int>("kept");
    QTest::newRow("zero") << qint64(0) << 0;
    QTest::newRow("largest that is kept") << qint64(2147483647) << Int::max();
    QTest::newRow("first that wraps") << qint64(2147483648) << Int::min();
    QTest::newRow("a whole turn") << qint64(4294967296) << 0;
    QTest::newRow("in 2026") << qint64(1795000000000) << int(1795000000000 - 418LL * 4294967296);
    QTest::newRow("before the epoch") << qint64(-1) << -1;
}

void FrameRateTest::cut()
{
    QFETCH(qint64, milliseconds);
    QTEST(cutTo32Bits(milliseconds), "kept");
}

void FrameRateTest::defaults()
{
    CameraState state;
    QCOMPARE(state.exposure, 0.0);
    QCOMPARE(state.roiWidth, 0U);
    state.sdkReady = true;
    state.cameraConnected = true;
    state.liveMode = true;
    setCameraDefaults(state);
    QVERIFY(!state.sdkReady && !state.cameraConnected && !state.liveMode);
    QCOMPARE(QByteArray(state.cameraId), QByteArray());
    QCOMPARE(state.exposure, 20000.0);
    QCOMPARE(state.gain, 1.0);
    QCOMPARE(state.speed, 0.0);
    QCOMPARE(state.usbTraffic, 30.0);
    QCOMPARE(state.bits, 8U);
    QCOMPARE(state.binX, 1U);
    QCOMPARE(state.binY, 1U);
    QCOMPARE(state.streamMode, 1U);
    QCOMPARE(state.roiX, 0U);
    QCOMPARE(state.roiY, 0U);
    QCOMPARE(state.roiWidth, 1280U);
    QCOMPARE(state.roiHeight, 960U);
    QCOMPARE(frameBufferSize, std::size_t(3686400));
    LatestFrame latest;
    QVERIFY(std::all_of(latest.fetchBuffer(), latest.fetchBuffer() + frameBufferSize,
                        [](std::uint8_t byte) { return byte == 0; }));
    const FrameRateMeter meter;
    QCOMPARE(meter.rate().whole, 0);
    QCOMPARE(meter.rate().tenths, 0);
    QCOMPARE(FrameRateMeterProbe(meter).lastFrameTime(), 0);
}

QTEST_GUILESS_MAIN(FrameRateTest)
#include "tst_framerate.moc"
