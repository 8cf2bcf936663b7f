// SPDX-License-Identifier: MIT
// Over long turns of the axis: does it show early, do coarser steps lose nothing, are slips found?
#include "assistant/axistracker.h"
#include "assistant/slipwatch.h"
#include "tests/assistant/eye.h"
#include "tests/assistant/guidetest.h"

using namespace assistant;

class AxisTurnsTest : public QObject
{
    Q_OBJECT

private slots:
    void axisShowsEarly_data();
    void axisShowsEarly();
    void coarserStepsLoseNothing();
    void slipNeedsATurn_data();
    void slipNeedsATurn();
};

void AxisTurnsTest::axisShowsEarly_data()
{
    QTest::addColumn<bool>("south");
    QTest::addColumn<unsigned>("seed");
    for (const bool south : {false, true})
        for (const unsigned seed : {1u, 2u, 3u, 4u})
            QTest::addRow("%s, %u", south ? "south" : "north", seed) << south << seed;
}

/// From one degree on, with an ellipse that shrinks and that holds the axis.
void AxisTurnsTest::axisShowsEarly()
{
    QFETCH(bool, south);
    QFETCH(unsigned, seed);
    virtualsky::SkyState sky = plainNight();
    sky.latitude = south ? -35.0 : sky.latitude;
    sky.seed = seed;
    Eye eye(sky);
    AxisTracker tracker;
    std::vector<double> sigmas;
    for (double angle = 0.0; angle <= 14.0; angle += 0.5) {
        tracker.add(eye.lookAt(angle));
        const auto &axis = tracker.earlyAxis();
        if (tracker.turnedDegrees() < 1.0)
            QVERIFY(!axis);
        if (!axis)
            continue;
        const double off = std::hypot(axis->place.x - eye.axis().x, axis->place.y - eye.axis().y) *
                           virtualsky::pixelScale;
        QVERIFY2(off < 4.0 * axis->sigmaArcseconds,
                 qPrintable(QString("%1, claimed %2").arg(off).arg(axis->sigmaArcseconds)));
        sigmas.push_back(axis->sigmaArcseconds);
    }
    QVERIFY(sigmas.size() > 20);
    QVERIFY2(sigmas.back() < 0.2 * sigmas.front(), qPrintable(QString::number(sigmas.front())));
    tracker.add(eye.lookAt(16.0));
    QVERIFY(!tracker.earlyAxis()); // it is known
}

/// As in a whole alignment: several frames a place at first, later one. The steps double at the
/// 41st place, 43 degrees, and again at twice that.
void AxisTurnsTest::coarserStepsLoseNothing()
{
    Eye eye(plainNight());
    AxisTracker tracker;
    double sigma = 0.0;
    for (double angle = 0.0; angle <= 99.0; angle += 1.05) {
        for (std::size_t i = 0; i < (angle < 16.0 ? AxisTracker::maxAtPlace : 1); ++i)
            QVERIFY(tracker.add(eye.lookAt(angle)) == AxisTracker::Event::None);
        if (angle >= 30.0) {
            const double now = tracker.axis().sigmaArcseconds;
            QVERIFY2(sigma == 0.0 || now < 1.01 * sigma,
                     qPrintable(
                         QStringLiteral("%1 degrees: %2 after %3").arg(angle).arg(now).arg(sigma)));
            sigma = now;
        }
    }
    QVERIFY(tracker.axis().turns.size() <= AxisTracker::maxKept);
}

void AxisTurnsTest::slipNeedsATurn_data()
{
    QTest::addColumn<double>("slip"); // pixels
    QTest::addColumn<double>("turn"); // degrees
    QTest::addColumn<bool>("moving"); // the bolts, before the turn
    QTest::addColumn<bool>("noticed");
    QTest::newRow("nothing") << 0.0 << 20.0 << false << false;
    QTest::newRow("bolts before the turn") << 0.0 << 20.0 << true << false;
    QTest::newRow("slip, no turn") << 10.0 << 2.0 << false << false;
    QTest::newRow("slip") << 10.0 << 15.0 << false << true;
    QTest::newRow("slip after bolts") << 10.0 << 15.0 << true << true;
    QTest::newRow("slip, a short turn") << 10.0 << 6.0 << false << true;
    QTest::newRow("a small slip") << 2.0 << 20.0 << false << true;
}

void AxisTurnsTest::slipNeedsATurn()
{
    QFETCH(double, slip);
    QFETCH(double, turn);
    QFETCH(bool, moving);
    QFETCH(bool, noticed);
    Eye eye(plainNight());
    AxisTracker tracker;
    for (int angle = 0; angle <= 20; angle += 2)
        tracker.add(eye.lookAt(angle));
    QVERIFY(tracker.axis().status == recognition::AxisStatus::Found);
    SlipWatch watch;
    double altitude = 0.3;
    for (int i = 0; moving && i < 10; ++i)
        QVERIFY(!watch.hasSlipped(eye.lookAt(20.0, altitude -= 0.02), tracker.axis()));
    bool said = false;
    for (double angle = 20.0; angle <= 20.0 + turn; angle += 1.0)
        said = said || watch.hasSlipped(eye.lookAt(angle, altitude, 40.0 + slip), tracker.axis());
    QCOMPARE(said, noticed);
}

QTEST_GUILESS_MAIN(AxisTurnsTest)
#include "tst_axisturns.moc"
