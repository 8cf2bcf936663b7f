// SPDX-License-Identifier: MIT
// Are the RA axis and the mount's error as exact as they claim, over many frames?
#include <QtTest>

#include "recognition/axis.h"
#include "recognition/mounterror.h"
#include "skyframes.h"

#include <random>

using namespace recognition;
using namespace skyframes;
using virtualsky::SkyState;

namespace
{
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
    options.minScale = 0.95 * frame.scale;
    options.maxScale = 1.05 * frame.scale;
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

class AxisClaimsTest : public QObject
{
    Q_OBJECT

private slots:
    void threeFrames_data();
    void threeFrames();
    void mountErrorsClaimIsHonest_data();
    void mountErrorsClaimIsHonest();
};

void AxisClaimsTest::threeFrames_data()
{
    addSkies();
}

void AxisClaimsTest::threeFrames()
{
    QFETCH(bool, south);
    QFETCH(double, date);
    std::mt19937 random(south ? 11 : 12);
    constexpr int trials = 12;
    Agreement agreement;
    for (unsigned trial = 0; trial < trials; ++trial) {
        SkyState state = skyOf(south, date);
        scatterAxis(state, 150.0, random);
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

void AxisClaimsTest::mountErrorsClaimIsHonest_data()
{
    QTest::addColumn<bool>("south");
    QTest::addColumn<std::vector<double>>("turns");
    QTest::newRow("north, three frames") << false << std::vector<double>{0.0, 30.0, 60.0};
    QTest::newRow("south, two frames") << true << std::vector<double>{0.0, 175.0};
}

// One of the frames that gave the axis shares its errors with it, a later one does not: with both,
// the claim is neither too narrow nor too wide. Three frames that happen to disagree widen the
// claim: that makes a mean square of 0.85 of a claim that is right otherwise.
void AxisClaimsTest::mountErrorsClaimIsHonest()
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

QTEST_GUILESS_MAIN(AxisClaimsTest)
#include "tst_axisclaims.moc"
