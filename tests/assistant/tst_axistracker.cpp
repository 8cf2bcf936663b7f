// SPDX-License-Identifier: MIT
// Does the tracker keep a bounded choice of frames, all of them sharp, and notice moved bolts?
#include "assistant/axistracker.h"
#include "tests/assistant/eye.h"
#include "tests/assistant/guidetest.h"

#include "recognition/extraction.h"
#include "recognition/recognise.h"

using namespace assistant;
using recognition::Recognition;

class AxisTrackerTest : public QObject
{
    Q_OBJECT

private slots:
    void manyFramesAreFewKept();
    void everySharpFrameCounts();
    void framesThatDisagreeDoNotCount();
    void onlySharpFramesCount_data();
    void onlySharpFramesCount();
    void onlySharpFramesImproveTheAxis_data();
    void onlySharpFramesImproveTheAxis();
    void sigmaShrinksWithTurn();
    void turnsAddUp();
    void departureTellsMovedBolts();
};

void AxisTrackerTest::manyFramesAreFewKept()
{
    Eye eye(plainNight());
    AxisTracker tracker;
    for (int degree = 0; degree <= 90; ++degree)
        QVERIFY(tracker.add(eye.lookAt(degree)) == AxisTracker::Event::None);
    QCOMPARE(tracker.frames(), std::size_t(91));
    QVERIFY(std::abs(tracker.turnedDegrees() - 90.0) < 3.0);
    const auto off =
        std::hypot(tracker.axis().place.x - eye.axis().x, tracker.axis().place.y - eye.axis().y);
    QVERIFY2(off * virtualsky::pixelScale < 1.5, qPrintable(QString::number(off)));
    QVERIFY(tracker.axis().turns.size() <= AxisTracker::maxKept);
    QVERIFY(!tracker.isNewAngle(eye.lookAt(45.0)));
    QVERIFY(tracker.isNewAngle(eye.lookAt(100.0)));
}

/// Up to four frames at one place; the claim shrinks by less than their number's root.
void AxisTrackerTest::everySharpFrameCounts()
{
    Eye eye(plainNight());
    AxisTracker tracker;
    std::vector<double> sigmas;
    for (std::size_t round = 0; round <= AxisTracker::maxAtPlace; ++round) {
        for (int angle = 0; angle <= 16; angle += 2) {
            const Recognition frame = eye.lookAt(angle);
            QCOMPARE(tracker.wants(frame), round < AxisTracker::maxAtPlace);
            QCOMPARE(tracker.isNewAngle(frame), round == 0);
            QVERIFY(tracker.add(frame) == AxisTracker::Event::None);
        }
        QCOMPARE(tracker.frames(), 9 * std::min(round + 1, AxisTracker::maxAtPlace));
        sigmas.push_back(tracker.axis().sigmaArcseconds);
    }
    const QString said = QStringLiteral("%1, %2, %3").arg(sigmas[0]).arg(sigmas[1]).arg(sigmas[3]);
    QVERIFY2(sigmas[1] < 0.95 * sigmas[0] && sigmas[3] < 0.8 * sigmas[0], qPrintable(said));
    QVERIFY2(sigmas[3] > 0.5 * sigmas[0], qPrintable(said));
    QCOMPARE(sigmas[4], sigmas[3]);
}

/// A gust of 6" during one frame is too small for a bump.
void AxisTrackerTest::framesThatDisagreeDoNotCount()
{
    Eye eye(plainNight());
    AxisTracker tracker;
    for (int angle = 0; angle <= 14; angle += 2) {
        tracker.add(eye.lookAt(angle));
        if (angle == 6)
            QVERIFY(tracker.add(eye.lookAt(angle, 0.3 + 6.0 / 3600.0)) == AxisTracker::Event::None);
    }
    QCOMPARE(tracker.frames(), std::size_t(9)); // the axis is not known yet
    QVERIFY(tracker.add(eye.lookAt(16.0)) == AxisTracker::Event::None);
    QVERIFY(tracker.axis().status == recognition::AxisStatus::Found);
    QCOMPARE(tracker.frames(), std::size_t(9));
}

void AxisTrackerTest::onlySharpFramesCount_data()
{
    QTest::addColumn<double>("trail");      // pixels
    QTest::addColumn<double>("elongation"); // that it makes
    QTest::addColumn<double>("turn");       // degrees, before the frame
    QTest::addColumn<bool>("counts");
    for (const double turn : {0.2, 6.0}) {
        const char *const how = turn > 1.0 ? "searched" : "followed";
        QTest::addRow("round, %s", how) << 0.0 << 1.09 << turn << true;
        QTest::addRow("just sharp, %s", how) << 1.19 << 1.48 << turn << true;
        QTest::addRow("just trailed, %s", how) << 1.25 << 1.52 << turn << false;
        QTest::addRow("trailed, %s", how) << 1.55 << 1.74 << turn << false;
    }
}

/// While the axis is measured: a frame that the turning draws out is recognised and left out, and a
/// sharp one at the same angle counts.
void AxisTrackerTest::onlySharpFramesCount()
{
    QFETCH(double, trail);
    QFETCH(double, elongation);
    QFETCH(double, turn);
    QFETCH(bool, counts);
    PaintedMount mount(plainNight(), settingsFor(plainNight()));
    const Status before = nextThatSays(mount, AdviceCode::TurnAxis);
    QCOMPARE(before.axis.frames, std::size_t(1));
    mount.setTrail(trail);
    virtualsky::SkyState sky = mount.sky();
    sky.raAngle += turn;
    mount.setSky(sky);
    Status after = mount.next();
    QVERIFY(after.sky->status == recognition::RecognitionStatus::Recognised);
    const double seen = recognition::extractStars(mount.lastFrame()).elongation;
    QVERIFY2(std::abs(seen - elongation) < 0.01, qPrintable(QString::number(seen)));
    QCOMPARE(after.axis.frames, std::size_t(counts ? 2 : 1));
    QCOMPARE(after.axis.turnedDegrees > 5.0, counts && turn > 5.0);
    mount.setTrail(0.0);
    after = mount.next();
    QCOMPARE(after.axis.frames, std::size_t(counts ? 3 : 2));
    QCOMPARE(after.axis.turnedDegrees > 5.0, turn > 5.0);
}

void AxisTrackerTest::onlySharpFramesImproveTheAxis_data()
{
    QTest::addColumn<double>("trail"); // pixels
    QTest::addColumn<bool>("counts");
    QTest::newRow("sharp") << 1.1 << true;
    QTest::newRow("trailed") << 1.4 << false;
}

/// While the bolts are turned.
void AxisTrackerTest::onlySharpFramesImproveTheAxis()
{
    QFETCH(double, trail);
    QFETCH(bool, counts);
    PaintedMount mount(plainNight(), settingsFor(plainNight()));
    QVERIFY(turnAxisAsTold(mount));
    const std::size_t before = mount.next().axis.frames;
    mount.setTrail(trail);
    virtualsky::SkyState sky = mount.sky();
    sky.raAngle += 6.0;
    mount.setSky(sky);
    const Status after = mount.next();
    QVERIFY(after.stage == Stage::Bolts);
    QCOMPARE(after.axis.frames, before + (counts ? 1 : 0));
}

void AxisTrackerTest::sigmaShrinksWithTurn()
{
    Eye eye(plainNight());
    AxisTracker tracker;
    std::vector<double> sigmas;
    for (int angle = 0; angle <= 60; angle += 2) {
        tracker.add(eye.lookAt(angle));
        if (angle < 15)
            QVERIFY(tracker.axis().status != recognition::AxisStatus::Found);
        if (angle == 16 || angle == 30 || angle == 60)
            sigmas.push_back(tracker.axis().sigmaArcseconds);
    }
    const QString said = QStringLiteral("%1, %2, %3").arg(sigmas[0]).arg(sigmas[1]).arg(sigmas[2]);
    QVERIFY2(sigmas[1] < 0.7 * sigmas[0] && sigmas[2] < 0.7 * sigmas[1], qPrintable(said));
}

void AxisTrackerTest::turnsAddUp()
{
    Eye eye(plainNight(true));
    AxisTracker tracker;
    for (const double angle : {0.0, 8.0, 4.0, -3.0, -9.0})
        tracker.add(eye.lookAt(angle));
    QVERIFY(std::abs(tracker.turnedDegrees() - 17.0) < 0.1);
    QVERIFY(tracker.isEnough());
}

void AxisTrackerTest::departureTellsMovedBolts()
{
    Eye eye(plainNight());
    AxisTracker tracker;
    QVERIFY(!tracker.departure(eye.lookAt(0.0)).has_value());
    for (int angle = 0; angle <= 20; angle += 2)
        tracker.add(eye.lookAt(angle));
    const Recognition still = eye.lookAt(25.0);
    QVERIFY(*tracker.departure(still) <= tracker.allowedDeparture(still));
    const Recognition moved = eye.lookAt(25.0, 0.3 + 30.0 / 3600.0);
    QVERIFY(std::abs(*tracker.departure(moved) - 30.0) < 4.0);
    QVERIFY(*tracker.departure(moved) > tracker.allowedDeparture(moved));
    tracker.shiftClock(3600.0); // the kept frames' sky is an hour on
    QVERIFY(*tracker.departure(still) > tracker.allowedDeparture(still));
}

QTEST_GUILESS_MAIN(AxisTrackerTest)
#include "tst_axistracker.moc"
