// SPDX-License-Identifier: MIT
// Is the RA axis found from turned frames, are bumps noticed, and is the mount's error right?
#include <QtTest>

#include "recognition/axis.h"
#include "recognition/mounterror.h"
#include "skyframes.h"

#include <cmath>
#include <random>

using namespace recognition;
using namespace skyframes;
using virtualsky::SkyState;

namespace
{
// A frame after the RA axis turned and time passed.
Recognition turned(SkyState state, double raAngle, double secondsLater, unsigned number)
{
    state.raAngle = raAngle;
    const double time = *state.date + secondsLater;
    return recognised(frameOf(state, time, number), time);
}

virtualsky::Point axisOf(const SkyState &state)
{
    return virtualsky::truth(state, *state.date).axis.value();
}

// A recognised frame's stars where its mapping puts them.
std::vector<DetectedStar> exactStars(const Recognition &frame)
{
    std::vector<DetectedStar> stars;
    for (const MatchedStar &star : frame.matched)
        stars.push_back(
            {star.place.x, star.place.y, 1e6 / (double(stars.size()) + 1.0), 20.0, 2.5, false});
    return stars;
}

// The same stars with centroid errors, recognised again.
Recognition disturbed(std::vector<DetectedStar> stars, const Recognition &frame,
                      std::mt19937 &random)
{
    std::normal_distribution<double> error(0.0, 0.4); // pixels
    for (DetectedStar &star : stars) {
        star.x += error(random);
        star.y += error(random);
    }
    RecognitionOptions options;
    options.utcSeconds = frame.utcSeconds;
    options.hemisphere = frame.hemisphere;
    options.leastScale = 0.95 * frame.scale;
    options.greatestScale = 1.05 * frame.scale;
    return recognise(stars, frame.width, frame.height, options);
}

// Squared distances from the truth in standard errors.
struct Honesty {
    double squares = 0.0;
    int inside = 0, count = 0;

    void add(const MountError &found, const MountError &truth)
    {
        const double squared =
            claimed({found.altitude.arcseconds, found.azimuth.arcseconds}, found.covariance,
                    {truth.altitude.arcseconds, truth.azimuth.arcseconds});
        squares += squared;
        inside += squared <= 6.18; // holds 95.45 of 100
        ++count;
    }
    double meanSquare() const { return 0.5 * squares / count; } // of one direction
    double percentInside() const { return 100.0 * inside / count; }
};
} // namespace

class AxisTest : public QObject
{
    Q_OBJECT

private slots:
    void threeFrames_data();
    void threeFrames();
    void theClaimLeavesOutWhatTheFramesShare();
    void turnsAreSigned();
    void bumpedFrameIsNamed();
    void aMoveForGoodIsNoticed();
    void threeFramesCannotNameTheBump();
    void failuresHaveReasons();
    void mountErrorAgreesWithTheTruth_data();
    void mountErrorAgreesWithTheTruth();
    void mountErrorsClaimIsHonest_data();
    void mountErrorsClaimIsHonest();
    void errorsOfTheWrongHemisphereAreNone();
};

void AxisTest::threeFrames_data()
{
    addSkies();
}

void AxisTest::threeFrames()
{
    QFETCH(bool, south);
    QFETCH(double, date);
    std::mt19937 random(south ? 11 : 12);
    std::uniform_real_distribution<double> place(-150.0, 150.0);
    constexpr int trials = 12;
    Agreement agreement;
    for (unsigned trial = 0; trial < trials; ++trial) {
        SkyState state = skyOf(south, date);
        state.axisX = place(random);
        state.axisY = place(random);
        const std::vector<Recognition> frames = {turned(state, -30.0, 0.0, 3 * trial),
                                                 turned(state, 0.0, 45.0, 3 * trial + 1),
                                                 turned(state, 30.0, 120.0, 3 * trial + 2)};
        const Axis axis = axisOfTurns(frames);
        QVERIFY2(axis.status == AxisStatus::Found, reason(axis).c_str());
        QVERIFY(axis.checked && axis.bumped.empty());
        agreement.add(axis.place, axis.covariance, axisOf(state));
    }
    QVERIFY2(agreement.rms() < 2.0, qPrintable(QString::number(agreement.rms())));
    QVERIFY(agreement.withinTwoSigma() >= 9);
}

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

void AxisTest::mountErrorsClaimIsHonest_data()
{
    QTest::addColumn<bool>("south");
    QTest::addColumn<std::vector<double>>("turns");
    QTest::newRow("north, three frames") << false << std::vector<double>{0.0, 30.0, 60.0};
    QTest::newRow("south, two frames") << true << std::vector<double>{0.0, 175.0};
}

// One of the frames that gave the axis shares its errors with it, a later one does not: with both,
// the claim is neither too narrow nor too wide. Three frames that happen to disagree widen the
// claim: that makes a mean square of 0.85 of a claim that is right otherwise.
void AxisTest::mountErrorsClaimIsHonest()
{
    QFETCH(bool, south);
    QFETCH(std::vector<double>, turns);
    constexpr int trials = 300;
    SkyState state = skyOf(south, november2026);
    state.boltAltitude = 0.3;
    turns.push_back(turns.back() + 20.0); // the later frame
    std::vector<Recognition> exact;
    std::vector<std::vector<DetectedStar>> stars;
    for (std::size_t i = 0; i < turns.size(); ++i) {
        exact.push_back(turned(state, turns[i], 40.0 * double(i), unsigned(i) + 1));
        stars.push_back(exactStars(exact.back()));
    }
    MountErrorOptions options;
    options.site = {state.latitude, state.longitude};
    const auto measured = [&options](const std::vector<Recognition> &frames) {
        const Axis axis = axisOfTurns({frames.begin(), frames.end() - 1});
        return std::vector{mountError(frames.front(), axis, options).value(),
                           mountError(frames.back(), axis, options).value()};
    };
    const std::vector<MountError> truth = measured(exact);
    std::mt19937 random(south ? 31 : 32);
    Honesty own, later;
    for (int trial = 0; trial < trials; ++trial) {
        std::vector<Recognition> frames;
        for (std::size_t i = 0; i < exact.size(); ++i)
            frames.push_back(disturbed(stars[i], exact[i], random));
        const std::vector<MountError> found = measured(frames);
        own.add(found.front(), truth.front());
        later.add(found.back(), truth.back());
    }
    for (const Honesty *one : {&own, &later}) {
        const QString text = QStringLiteral("%1 % inside, mean square %2, %3 frame")
                                 .arg(one->percentInside())
                                 .arg(one->meanSquare())
                                 .arg(one == &own ? "own" : "later");
        QVERIFY2(one->percentInside() >= 90.0 && one->percentInside() <= 98.0, qPrintable(text));
        QVERIFY2(one->meanSquare() > 0.74 && one->meanSquare() < 1.15, qPrintable(text));
    }
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
