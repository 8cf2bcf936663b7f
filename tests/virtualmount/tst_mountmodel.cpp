// SPDX-License-Identifier: MIT
// What does every action by hand change, and how is it displayed?
#include "virtualmount/mountmodel.h"
#include "virtualmount/mounttexts.h"

#include <QtTest>
#include <cmath>
#include <limits>

Q_DECLARE_METATYPE(virtualsky::SkyState)
Q_DECLARE_METATYPE(virtualmount::TimeMode)

using namespace virtualmount;

namespace
{
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();
constexpr double evening = 1795204800.0; // 2026-11-20T20:00:00Z
constexpr double starDay = 86164.0989;   // seconds in which the sky turns once
} // namespace

class MountModelTest : public QObject
{
    Q_OBJECT

private slots:
    void wrapping_data();
    void wrapping();
    void turnsAtTheRate_data();
    void turnsAtTheRate();
    void turnsAddUp();
    void bolts_data();
    void bolts();
    void stepsThereAndBackMeet();
    void trackingKeepsTheAxisWhereItIs_data();
    void trackingKeepsTheAxisWhereItIs();
    void newTimeKeepsTheAxisWhereItIs_data();
    void newTimeKeepsTheAxisWhereItIs();
    void passingCloudsComeAndGo();
    void site_data();
    void site();
    void arcs_data();
    void arcs();
    void knobTurns_data();
    void knobTurns();
    void angles_data();
    void angles();
    void truthSides_data();
    void truthSides();
};

void MountModelTest::wrapping_data()
{
    QTest::addColumn<double>("degrees");
    QTest::addColumn<double>("expected");
    QTest::newRow("zero") << 0.0 << 0.0;
    QTest::newRow("inside") << -30.5 << -30.5;
    QTest::newRow("half a turn") << 180.0 << 180.0;
    QTest::newRow("half a turn back") << -180.0 << 180.0;
    QTest::newRow("just past") << 180.25 << -179.75;
    QTest::newRow("a turn") << 360.0 << 0.0;
    QTest::newRow("many turns") << 36045.0 << 45.0;
    QTest::newRow("the file's least") << -360.0 << 0.0;
    QTest::newRow("no number") << noNumber << 0.0;
    QTest::newRow("endless") << -infinity << 0.0;
}

void MountModelTest::wrapping()
{
    QFETCH(double, degrees);
    QFETCH(double, expected);
    const double turned = wrapped(degrees);
    QVERIFY2(std::abs(turned - expected) <= 1e-9, qPrintable(QString::number(turned)));
    QVERIFY(!std::signbit(turned) || turned < 0.0);
}

void MountModelTest::turnsAtTheRate_data()
{
    QTest::addColumn<double>("degrees");
    QTest::addColumn<double>("seconds");
    QTest::addColumn<double>("expected");
    QTest::newRow("a tick forwards") << 30.0 << 0.066 << 1.32;
    QTest::newRow("a tick back") << -30.0 << 0.066 << -1.32;
    QTest::newRow("the last bit") << 0.5 << 0.066 << 0.5;
    QTest::newRow("no time") << 30.0 << 0.0 << 0.0;
    QTest::newRow("time that runs backwards") << 30.0 << -1.0 << 0.0;
    QTest::newRow("after a hold-up") << 45.0 << 60.0 << 5.0;
    QTest::newRow("nothing to turn") << 0.0 << 0.066 << 0.0;
}

void MountModelTest::turnsAtTheRate()
{
    QFETCH(double, degrees);
    QFETCH(double, seconds);
    QFETCH(double, expected);
    AxisMotion motion;
    motion.turnBy(degrees);
    const double step = motion.advance(seconds);
    QVERIFY2(std::abs(step - expected) <= 1e-12, qPrintable(QString::number(step)));
    QVERIFY(std::abs(motion.remaining() - (degrees - expected)) <= 1e-12);
    QCOMPARE(motion.isMoving(), degrees != expected);
}

void MountModelTest::turnsAddUp()
{
    AxisMotion motion;
    motion.turnBy(45.0);
    motion.turnBy(-15.0);
    SkyState state;
    state.raAngle = 170.0;
    int ticks = 0;
    for (; motion.isMoving() && ticks < 1000; ++ticks)
        turnAxis(state, motion.advance(0.1));
    QCOMPARE(ticks, 15); // 30 degrees at 2 degrees a tick
    QCOMPARE(state.raAngle, -160.0);
}

void MountModelTest::bolts_data()
{
    QTest::addColumn<double>("before");
    QTest::addColumn<double>("turn");
    QTest::addColumn<double>("expected");
    QTest::newRow("coarse up") << 0.6 << coarseStep << 0.6 + 5.0 / 60.0;
    QTest::newRow("fine down") << 0.6 << -fineStep << 0.6 - 20.0 / 3600.0;
    QTest::newRow("through zero") << 0.04 << -coarseStep << 0.04 - 5.0 / 60.0;
    QTest::newRow("to the upper end") << 19.99 << coarseStep << 20.0;
    QTest::newRow("to the lower end") << -20.0 << -fineStep << -20.0;
}

void MountModelTest::bolts()
{
    QFETCH(double, before);
    QFETCH(double, turn);
    QFETCH(double, expected);
    for (double SkyState::*const bolt : {&SkyState::boltAltitude, &SkyState::boltAzimuth}) {
        SkyState state;
        const SkyState defaults;
        state.*bolt = before;
        turnBolt(state, bolt, turn);
        QVERIFY2(std::abs(state.*bolt - expected) <= 1e-7,
                 qPrintable(QString::number(state.*bolt, 'g', 15)));
        const bool isAltitude = bolt == &SkyState::boltAltitude;
        double SkyState::*const other =
            isAltitude ? &SkyState::boltAzimuth : &SkyState::boltAltitude;
        QCOMPARE(state.*other, defaults.*other);
    }
}

void MountModelTest::stepsThereAndBackMeet()
{
    SkyState state;
    for (const double step : {coarseStep, fineStep, -coarseStep, -fineStep})
        for (int i = 0; i < 7; ++i)
            turnBolt(state, &SkyState::boltAzimuth, step);
    QVERIFY(std::abs(state.boltAzimuth + 1.0) <= 1e-12);
}

void MountModelTest::trackingKeepsTheAxisWhereItIs_data()
{
    QTest::addColumn<bool>("given");
    QTest::addColumn<bool>("running");
    QTest::addColumn<double>("turned"); // degrees after an hour
    const double hour = 360.0 * 3600.0 / starDay;
    QTest::newRow("now") << false << true << hour;
    QTest::newRow("a running date") << true << true << hour;
    QTest::newRow("a date that stands still") << true << false << 0.0;
}

void MountModelTest::trackingKeepsTheAxisWhereItIs()
{
    QFETCH(bool, given);
    QFETCH(bool, running);
    QFETCH(double, turned);
    constexpr double system = evening + 1e6;
    virtualsky::SkyClock clock;
    SkyState state;
    state.raAngle = 10.0;
    state.running = running;
    if (given)
        state.date = evening;
    setTracking(state, clock.at(state, system), true);
    QVERIFY(state.tracking);
    QVERIFY(std::abs(axisAngle(clock.at(state, system)) - 10.0) <= 1e-6);
    const Moment later = clock.at(state, system + 3600.0);
    QVERIFY(std::abs(axisAngle(later) - (10.0 + turned)) <= 1e-4);
    setTracking(state, later, false);
    QVERIFY(!state.tracking);
    QVERIFY(!state.trackingSince);
    QVERIFY(std::abs(state.raAngle - (10.0 + turned)) <= 1e-4);
    setTracking(state, clock.at(state, system + 7200.0), false);
    QVERIFY(std::abs(state.raAngle - (10.0 + turned)) <= 1e-4);
}

void MountModelTest::newTimeKeepsTheAxisWhereItIs_data()
{
    QTest::addColumn<TimeMode>("from");
    QTest::addColumn<TimeMode>("to");
    QTest::addColumn<double>("turned"); // degrees in the hour before, then in the hour after
    QTest::addColumn<double>("then");
    const double hour = 360.0 * 3600.0 / starDay;
    QTest::newRow("now to still") << TimeMode::Now << TimeMode::Still << hour << 0.0;
    QTest::newRow("now to running") << TimeMode::Now << TimeMode::Running << hour << hour;
    QTest::newRow("running to now") << TimeMode::Running << TimeMode::Now << hour << hour;
    QTest::newRow("still to now") << TimeMode::Still << TimeMode::Now << 0.0 << hour;
    QTest::newRow("running to another date")
        << TimeMode::Running << TimeMode::Running << hour << hour;
}

void MountModelTest::newTimeKeepsTheAxisWhereItIs()
{
    QFETCH(TimeMode, from);
    QFETCH(TimeMode, to);
    QFETCH(double, turned);
    QFETCH(double, then);
    constexpr double system = evening + 1e6;
    virtualsky::SkyClock clock;
    SkyState state;
    state.raAngle = -5.0;
    setTime(state, clock.at(state, system), system, from, evening);
    setTracking(state, clock.at(state, system), true);
    clock.at(state, system);

    const double change = system + 3600.0;
    setTime(state, clock.at(state, change), change, to, evening - 86400.0);
    QCOMPARE(timeMode(state), to);
    QCOMPARE(state.date.value_or(0.0), to == TimeMode::Now ? 0.0 : evening - 86400.0);
    QVERIFY(std::abs(axisAngle(clock.at(state, change)) - (-5.0 + turned)) <= 1e-4);
    const double end = axisAngle(clock.at(state, change + 3600.0));
    QVERIFY(std::abs(end - (-5.0 + turned + then)) <= 1e-4);
}

void MountModelTest::passingCloudsComeAndGo()
{
    int clear = 0, thick = 0, changes = 0;
    double before = passingClouds(0.0);
    QCOMPARE(before, 0.0);
    for (int tenths = 1; tenths <= 6000; ++tenths) {
        const double held = passingClouds(tenths / 10.0);
        QVERIFY(held >= 0.0 && held <= 0.9);
        QVERIFY(std::abs(held - before) <= 0.021); // no cloud has a sharp edge
        QVERIFY(std::abs(100.0 * held - std::round(100.0 * held)) <= 1e-9);
        clear += held == 0.0;
        thick += held >= 0.7;
        changes += (held == 0.0) != (before == 0.0);
        before = held;
    }
    QVERIFY2(clear > 2000 && clear < 4000, qPrintable(QString::number(clear)));
    QVERIFY2(thick > 300, qPrintable(QString::number(thick)));
    QVERIFY2(changes >= 20, qPrintable(QString::number(changes)));
}

void MountModelTest::site_data()
{
    QTest::addColumn<SkyState>("after");
    QTest::addColumn<bool>("moved");
    const auto row = [](const char *name, bool moved, auto change) {
        SkyState state;
        change(state);
        QTest::newRow(name) << state << moved;
    };
    row("nothing", false, [](SkyState &) {});
    row("latitude", true, [](SkyState &s) { s.latitude = -40.0; });
    row("longitude", true, [](SkyState &s) { s.longitude = 115.0; });
    row("a bolt", false, [](SkyState &s) { s.boltAltitude = 0.0; });
    row("the date", false, [](SkyState &s) { s.date = evening; });
}

void MountModelTest::site()
{
    QFETCH(SkyState, after);
    QFETCH(bool, moved);
    QCOMPARE(movedSite(SkyState(), after), moved);
}

void MountModelTest::arcs_data()
{
    QTest::addColumn<double>("arcseconds");
    QTest::addColumn<QString>("expected");
    QTest::newRow("none") << 0.0 << "0′ 00″";
    QTest::newRow("seconds") << 7.4 << "0′ 07″";
    QTest::newRow("a carry") << 59.6 << "1′ 00″";
    QTest::newRow("negative") << -725.0 << "12′ 05″";
    QTest::newRow("degrees") << 72000.0 << "1200′ 00″";
    QTest::newRow("no number") << noNumber << "—";
}

void MountModelTest::arcs()
{
    QFETCH(double, arcseconds);
    QFETCH(QString, expected);
    QCOMPARE(arcText(arcseconds), expected);
}

void MountModelTest::knobTurns_data()
{
    QTest::addColumn<double>("degrees");
    QTest::addColumn<QString>("altitude");
    QTest::addColumn<QString>("azimuth");
    QTest::newRow("none") << 0.0 << "0"
                          << "0";
    QTest::newRow("rounding's dust") << 1e-9 << "0"
                                     << "0";
    QTest::newRow("a coarse step") << coarseStep << "0.25 up"
                                   << "0.25 east";
    QTest::newRow("a fine step back") << -fineStep << "0.02 down"
                                      << "0.02 west";
    QTest::newRow("a degree") << -1.0 << "3.00 down"
                              << "3.00 west";
}

void MountModelTest::knobTurns()
{
    QFETCH(double, degrees);
    QFETCH(QString, altitude);
    QFETCH(QString, azimuth);
    QCOMPARE(altitudeTurns(degrees), altitude);
    QCOMPARE(azimuthTurns(degrees), azimuth);
}

void MountModelTest::angles_data()
{
    QTest::addColumn<double>("degrees");
    QTest::addColumn<QString>("expected");
    QTest::newRow("zero") << 0.0 << "0.0°";
    QTest::newRow("nearly zero from below") << -0.04 << "0.0°";
    QTest::newRow("forwards") << 30.0 << "+30.0°";
    QTest::newRow("back") << -7.46 << "-7.5°";
}

void MountModelTest::angles()
{
    QFETCH(double, degrees);
    QFETCH(QString, expected);
    QCOMPARE(angleText(degrees), expected);
}

void MountModelTest::truthSides_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("altitude");
    QTest::addColumn<double>("azimuth");
    QTest::addColumn<QStringList>("expected");
    // At 60 degrees a turn about the vertical is half of that on the sky.
    QTest::newRow("high") << 60.0 << 0.25 << 0.0
                          << QStringList{"15′ 00″", "15′ 00″ too high", "0′ 00″"};
    QTest::newRow("low, south") << -60.0 << -0.25 << 0.0
                                << QStringList{"15′ 00″", "15′ 00″ too low", "0′ 00″"};
    QTest::newRow("east") << 60.0 << 0.0 << 0.01
                          << QStringList{"0′ 18″", "0′ 00″", "0′ 18″ too far east"};
    QTest::newRow("west, south") << -60.0 << 0.0 << -0.01
                                 << QStringList{"0′ 18″", "0′ 00″", "0′ 18″ too far west"};
    QTest::newRow("aligned") << 40.0 << 0.0 << 0.0 << QStringList{"0′ 00″", "0′ 00″", "0′ 00″"};
}

void MountModelTest::truthSides()
{
    QFETCH(double, latitude);
    QFETCH(double, altitude);
    QFETCH(double, azimuth);
    QFETCH(QStringList, expected);
    SkyState state;
    state.latitude = latitude;
    state.boltAltitude = altitude;
    state.boltAzimuth = azimuth;
    const TruthTexts texts = truthTexts(virtualsky::truth(state, evening));
    QCOMPARE((QStringList{texts.total, texts.altitude, texts.azimuth}), expected);
}

QTEST_GUILESS_MAIN(MountModelTest)
#include "tst_mountmodel.moc"
