// SPDX-License-Identifier: MIT
// When is a frame ready, and what time is it in the sky?
#include <QtTest>

#include "virtualcamera/frameclock.h"
#include "virtualcamera/skyclock.h"

using namespace virtualsky;

class ClocksTest : public QObject
{
    Q_OBJECT

private slots:
    void period_data();
    void period();
    void frameIsReadyAfterItsPeriod();
    void latenessDoesNotAddUp();
    void missedFramesAreNotKept();
    void shorterPeriodActsAtOnce();
    void longerPeriodActsAtOnce();
    void withoutAPeriodAFrameIsAlwaysReady();
    void skyTime_data();
    void skyTime();
    void newDateStartsAnew();
    void trackingBeginsWhenSwitchedOn();
    void trackingSinceIsKept();
};

void ClocksTest::period_data()
{
    QTest::addColumn<double>("exposure");
    QTest::addColumn<double>("traffic");
    QTest::addColumn<double>("speed");
    QTest::addColumn<double>("milliseconds");
    QTest::newRow("30 frames a second") << 0.020 << 30.0 << 0.0 << 33.3333333;
    QTest::newRow("never faster") << 0.001 << 0.0 << 2.0 << 33.3333333;
    QTest::newRow("500 ms") << 0.5 << 30.0 << 0.0 << 513.3;
    QTest::newRow("most traffic") << 0.1 << 255.0 << 0.0 << 138.05;
    QTest::newRow("speed 1") << 0.1 << 255.0 << 1.0 << 128.5375;
    QTest::newRow("speed 2") << 0.1 << 255.0 << 2.0 << 119.025;
}

void ClocksTest::period()
{
    QFETCH(double, exposure);
    QFETCH(double, traffic);
    QFETCH(double, speed);
    QFETCH(double, milliseconds);
    QVERIFY(std::abs(framePeriod(exposure, traffic, speed) * 1e3 - milliseconds) < 1e-6);
}

void ClocksTest::frameIsReadyAfterItsPeriod()
{
    FrameClock clock;
    clock.begin(100.0, 0.5);
    QVERIFY(!clock.take(100.0));
    QVERIFY(!clock.take(100.49));
    QVERIFY(clock.take(100.5));
    QVERIFY(!clock.take(100.5));
    QVERIFY(!clock.take(100.99));
    QVERIFY(clock.take(101.0));
}

void ClocksTest::latenessDoesNotAddUp()
{
    // Polled every 10 ms, as the program does: still 30 frames a second.
    FrameClock clock;
    clock.begin(0.0, 1.0 / 30.0);
    int frames = 0;
    for (int i = 1; i <= 1000; ++i)
        frames += clock.take(i * 0.010 + 0.001) ? 1 : 0;
    QCOMPARE(frames, 300);
}

void ClocksTest::missedFramesAreNotKept()
{
    FrameClock clock;
    clock.begin(0.0, 0.1);
    QVERIFY(clock.take(5.05));
    QVERIFY(!clock.take(5.06));
    QVERIFY(clock.take(5.11));
}

void ClocksTest::shorterPeriodActsAtOnce()
{
    FrameClock clock;
    clock.begin(0.0, 10.0);
    QVERIFY(!clock.take(1.0));
    clock.setPeriod(0.1);
    QVERIFY(clock.take(1.0));
    QVERIFY(!clock.take(1.05));
}

void ClocksTest::longerPeriodActsAtOnce()
{
    FrameClock clock;
    clock.begin(0.0, 0.1);
    clock.setPeriod(2.0);
    QVERIFY(!clock.take(1.9));
    QVERIFY(clock.take(2.1));
}

void ClocksTest::withoutAPeriodAFrameIsAlwaysReady()
{
    FrameClock clock;
    clock.begin(0.0, 0.0);
    QVERIFY(clock.take(0.0));
    QVERIFY(clock.take(0.0));
    clock.setPeriod(1.0);
    QVERIFY(!clock.take(0.5));
    QVERIFY(clock.take(1.0));
}

void ClocksTest::skyTime_data()
{
    QTest::addColumn<double>("date"); // -1 = now
    QTest::addColumn<bool>("running");
    QTest::addColumn<double>("first");
    QTest::addColumn<double>("later"); // 50 seconds later
    QTest::newRow("now") << -1.0 << true << 1000.0 << 1050.0;
    QTest::newRow("now does not freeze") << -1.0 << false << 1000.0 << 1050.0;
    QTest::newRow("running date") << 7e8 << true << 7e8 << 7e8 + 50.0;
    QTest::newRow("frozen date") << 7e8 << false << 7e8 << 7e8;
}

void ClocksTest::skyTime()
{
    QFETCH(double, date);
    QFETCH(bool, running);
    QFETCH(double, first);
    QFETCH(double, later);
    SkyState state;
    if (date >= 0.0)
        state.date = date;
    state.running = running;
    SkyClock clock;
    QCOMPARE(clock.at(state, 1000.0).utcSeconds, first);
    QCOMPARE(clock.at(state, 1050.0).utcSeconds, later);
}

void ClocksTest::newDateStartsAnew()
{
    SkyClock clock;
    SkyState state;
    state.date = 7e8;
    clock.at(state, 1000.0);
    state.boltAltitude = 2.0; // no reason to restart
    QCOMPARE(clock.at(state, 1010.0).utcSeconds, 7e8 + 10.0);
    state.date = 8e8;
    QCOMPARE(clock.at(state, 1020.0).utcSeconds, 8e8);
    QCOMPARE(clock.at(state, 1021.0).utcSeconds, 8e8 + 1.0);
    // Tracking restarts with the date; otherwise years would be tracked in one step.
    state.tracking = true;
    clock.at(state, 1022.0);
    state.date = 9e8;
    QCOMPARE(clock.at(state, 1030.0).state.trackingSince.value_or(0.0), 9e8);
}

void ClocksTest::trackingBeginsWhenSwitchedOn()
{
    SkyClock clock;
    SkyState state;
    QVERIFY(!clock.at(state, 1000.0).state.trackingSince);
    state.tracking = true;
    QCOMPARE(clock.at(state, 1010.0).state.trackingSince.value_or(0.0), 1010.0);
    QCOMPARE(clock.at(state, 1090.0).state.trackingSince.value_or(0.0), 1010.0);
    state.tracking = false;
    clock.at(state, 1100.0);
    state.tracking = true;
    QCOMPARE(clock.at(state, 1110.0).state.trackingSince.value_or(0.0), 1110.0);
}

void ClocksTest::trackingSinceIsKept()
{
    SkyClock clock;
    SkyState state;
    state.tracking = true;
    state.trackingSince = 500.0;
    QCOMPARE(clock.at(state, 1000.0).state.trackingSince.value_or(0.0), 500.0);
}

QTEST_GUILESS_MAIN(ClocksTest)
#include "tst_clocks.moc"
