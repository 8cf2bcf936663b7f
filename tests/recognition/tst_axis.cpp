// SPDX-License-Identifier: MIT
// Is the RA axis found from turned frames, are bumps noticed, and is the mount's error right?
#include <QtTest>

#include "recognition/axis.h"
#include "recognition/mounterror.h"
#include "skyframes.h"

#include <cmath>

using namespace recognition;
using namespace skyframes;
using virtualsky::SkyState;

class AxisTest : public QObject
{
    Q_OBJECT

private slots:
    void theClaimLeavesOutWhatTheFramesShare();
    void turnsAreSigned();
    void bumpedFrameIsNamed();
    void aMoveForGoodIsNoticed();
    void threeFramesCannotNameTheBump();
    void failuresHaveReasons();
    void mountErrorAgreesWithTheTruth_data();
    void mountErrorAgreesWithTheTruth();
    void errorsOfTheWrongHemisphereAreNone();
};

// With an observer the places' common error is smaller: that of the pole shrinks by it, but the
// axis' own does not, because the same error in all frames does not move it.
void AxisTest::theClaimLeavesOutWhatTheFramesShare()
{
    const SkyState state = skyOf(true, november2026);
    std::vector<Recognition> plain, observed;
    for (const double turn : {0.0, 30.0, 60.0}) {
        SkyState moved = state;
        moved.raAngle = turn;
        const double time = *state.date + 2.0 * turn;
        const cv::Mat frame = frameOf(moved, time, unsigned(turn) + 1);
        plain.push_back(recognised(frame, time));
        RecognitionOptions options;
        options.utcSeconds = time;
        options.observer = Observer{{state.latitude, state.longitude}, {0.0, 0.0}};
        observed.push_back(recognise(extractStars(frame).stars, frame.cols, frame.rows, options));
    }
    QVERIFY(plain[0].poleSigmaArcseconds > 1.15 * observed[0].poleSigmaArcseconds);
    const Axis a = axisOfTurns(plain), b = axisOfTurns(observed);
    QVERIFY(a.status == AxisStatus::Found && b.status == AxisStatus::Found);
    const double ratio = a.sigmaArcseconds / b.sigmaArcseconds;
    QVERIFY2(std::abs(ratio - 1.0) < 0.05, qPrintable(QString::number(ratio)));
}

void AxisTest::turnsAreSigned()
{
    for (const bool south : {false, true}) {
        const SkyState state = skyOf(south, november2026);
        const Axis axis = axisOfTurns({turned(state, 0.0, 0.0, 1), turned(state, 20.0, 60.0, 2),
                                       turned(state, -15.0, 90.0, 3)});
        QVERIFY(axis.status == AxisStatus::Found);
        QVERIFY(std::abs(axis.turns[1] - 20.0) < 0.1);
        QVERIFY(std::abs(axis.turns[2] + 15.0) < 0.1);
        QVERIFY(std::abs(axis.totalTurn - 35.0) < 0.2);
    }
}

void AxisTest::bumpedFrameIsNamed()
{
    const SkyState state = skyOf(false, november2026);
    SkyState bumped = state;
    bumped.boltAzimuth += 0.02; // 72 arcsec about the vertical
    const Axis axis = axisOfTurns({turned(state, 0.0, 0.0, 1), turned(state, 25.0, 60.0, 2),
                                   turned(bumped, 40.0, 90.0, 3), turned(state, 60.0, 120.0, 4)});
    QVERIFY2(axis.status == AxisStatus::Found, reason(axis).c_str());
    QCOMPARE(axis.bumped, std::vector<std::size_t>{2});
    QVERIFY(QString::fromStdString(reason(axis)).contains(": 3."));
    QVERIFY(error(axis.place, axisOf(state)) < 2.0);
}

void AxisTest::aMoveForGoodIsNoticed()
{
    const SkyState state = skyOf(true, november2026);
    SkyState moved = state;
    moved.boltAltitude += 0.05;
    const Axis axis = axisOfTurns({turned(state, 0.0, 0.0, 1), turned(state, 25.0, 60.0, 2),
                                   turned(state, 50.0, 90.0, 3), turned(moved, 60.0, 120.0, 4)});
    QCOMPARE(axis.bumped, std::vector<std::size_t>{3});
    QVERIFY(error(axis.place, axisOf(state)) < 2.0);
}

void AxisTest::threeFramesCannotNameTheBump()
{
    const SkyState state = skyOf(false, november2026);
    SkyState bumped = state;
    bumped.boltAltitude += 0.02;
    const Axis axis = axisOfTurns(
        {turned(state, 0.0, 0.0, 1), turned(state, 30.0, 60.0, 2), turned(bumped, 60.0, 90.0, 3)});
    QVERIFY(axis.status == AxisStatus::Bumped);
    QVERIFY(QString::fromStdString(reason(axis)).contains("one more"));
}

void AxisTest::failuresHaveReasons()
{
    const SkyState state = skyOf(false, november2026);
    const Recognition first = turned(state, 0.0, 0.0, 1);
    QVERIFY(axisOfTurns({}).status == AxisStatus::TooFewFrames);
    QVERIFY(axisOfTurns({first, Recognition()}).status == AxisStatus::TooFewFrames);
    QVERIFY(axisOfTurns({first, turned(state, 10.0, 30.0, 2)}).status == AxisStatus::TooLittleTurn);
    Recognition other = turned(skyOf(true, november2026), 40.0, 30.0, 2);
    QVERIFY(axisOfTurns({first, other}).status == AxisStatus::DifferentFrames);
    const Axis two = axisOfTurns({first, Recognition(), turned(state, 40.0, 30.0, 3)});
    QVERIFY(two.status == AxisStatus::Found && !two.checked);
    QVERIFY(error(two.place, axisOf(state)) < 3.0);
    QCOMPARE(two.turns[1], 0.0);
}

void AxisTest::mountErrorAgreesWithTheTruth_data()
{
    QTest::addColumn<bool>("south");
    QTest::addColumn<double>("altitude"); // of the bolts, degrees
    QTest::addColumn<double>("azimuth");
    QTest::addColumn<bool>("air");
    QTest::newRow("north, up and west") << false << 0.6 << -1.0 << false;
    QTest::newRow("north, down and east") << false << -0.4 << 0.8 << false;
    QTest::newRow("south, up and east") << true << 0.3 << 0.5 << false;
    QTest::newRow("south, nearly aligned") << true << 0.01 << -0.01 << false;
    QTest::newRow("north through air") << false << 0.2 << 0.3 << true;
    QTest::newRow("south through air") << true << -0.2 << 0.3 << true;
}

void AxisTest::mountErrorAgreesWithTheTruth()
{
    QFETCH(bool, south);
    QFETCH(double, altitude);
    QFETCH(double, azimuth);
    QFETCH(bool, air);
    SkyState state = skyOf(south, november2026);
    state.boltAltitude = altitude;
    state.boltAzimuth = azimuth;
    state.refraction = air;
    std::vector<Recognition> frames = {turned(state, 0.0, 0.0, 1), turned(state, 30.0, 60.0, 2),
                                       turned(state, 60.0, 120.0, 3)};
    const Axis axis = axisOfTurns(frames);
    QVERIFY2(axis.status == AxisStatus::Found, reason(axis).c_str());
    MountErrorOptions options;
    options.site = {state.latitude, state.longitude};
    if (air)
        options.air =
            astrometry::refractionConstants(state.pressure, state.temperature, state.humidity);
    const auto measured = mountError(frames.front(), axis, options);
    QVERIFY(measured.has_value());
    const virtualsky::Truth truth = virtualsky::truth(state, *state.date);
    const auto agrees = [](const Measured &m, double wanted) {
        const double off = std::abs(m.arcseconds - wanted);
        return off < 3.0 && off < 4.0 * m.sigma && m.sigma < 2.0;
    };
    const auto text = [](const Measured &m) {
        return QString::number(m.arcseconds) + " +- " + QString::number(m.sigma);
    };
    QVERIFY2(agrees(measured->total, truth.poleError), qPrintable(text(measured->total)));
    QVERIFY2(agrees(measured->altitude, truth.altitudeError), qPrintable(text(measured->altitude)));
    QVERIFY2(agrees(measured->azimuth, truth.azimuthError), qPrintable(text(measured->azimuth)));
    if (!air)
        return;
    options.target = PoleTarget::Refracted;
    const auto refracted = mountError(frames.front(), axis, options);
    const double lift = 60.0 / std::tan(std::abs(state.latitude) * virtualsky::degree);
    const double less = measured->altitude.arcseconds - refracted->altitude.arcseconds;
    QVERIFY2(std::abs(less - lift) < 5.0, qPrintable(QString::number(less)));
}

void AxisTest::errorsOfTheWrongHemisphereAreNone()
{
    const SkyState state = skyOf(false, november2026);
    const Recognition first = turned(state, 0.0, 0.0, 1);
    const Axis axis = axisOfTurns({first, turned(state, 40.0, 60.0, 2)});
    MountErrorOptions options;
    options.site = {-34.0, 149.0};
    QVERIFY(!mountError(first, axis, options).has_value());
    options.site = {40.0, 116.0};
    QVERIFY(mountError(first, axis, options).has_value());
    QVERIFY(!mountError(first, Axis(), options).has_value());
    QVERIFY(!mountError(Recognition(), axis, options).has_value());
}

QTEST_GUILESS_MAIN(AxisTest)
#include "tst_axis.moc"
