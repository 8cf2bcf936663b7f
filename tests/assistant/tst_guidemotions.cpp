// SPDX-License-Identifier: MIT
// Is a motion that is no turn of the axis taken for none, while the axis is being found?
#include "tests/assistant/guidetest.h"

using namespace assistant;

class GuideMotionsTest : public QObject
{
    Q_OBJECT

private slots:
    void bumpWhileTheAxisTurns_data();
    void bumpWhileTheAxisTurns();
    void boltsAreNoTurn_data();
    void boltsAreNoTurn();
};

void GuideMotionsTest::bumpWhileTheAxisTurns_data()
{
    QTest::addColumn<double>("at"); // degrees turned
    QTest::addColumn<double>("by"); // degrees of altitude
    QTest::newRow("1 arcmin early") << 4.0 << 1.0 / 60.0;
    QTest::newRow("1 arcmin late") << 11.0 << 1.0 / 60.0;
    QTest::newRow("20 arcmin") << 7.0 << 20.0 / 60.0;
}

void GuideMotionsTest::bumpWhileTheAxisTurns()
{
    QFETCH(double, at);
    QFETCH(double, by);
    const virtualsky::SkyState sky = plainNight();
    PaintedMount mount(sky, settingsFor(sky));
    nextThatSays(mount, AdviceCode::TurnAxis);
    bool reported = false;
    bool bumped = false;
    Status status;
    for (double turned = 0.0; turned < 60.0; turned += 0.6) {
        turn(mount, 0.6);
        if (turned >= at && !bumped) {
            virtualsky::SkyState moved = mount.sky();
            moved.boltAltitude += by;
            mount.setSky(moved);
            bumped = true;
        }
        status = mount.next();
        reported = reported || says(status, AdviceCode::Bumped);
        QVERIFY(!status.error || isTrue(status, mount));
    }
    QVERIFY(reported);
    QVERIFY(status.stage == Stage::Bolts);
    QVERIFY(isTrue(status, mount));
}

void GuideMotionsTest::boltsAreNoTurn_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("altitude"); // degrees that the bolts turn
    QTest::addColumn<double>("azimuth");
    QTest::addColumn<int>("frames");     // during which they turn
    QTest::addColumn<double>("counted"); // at most, degrees of turn
    QTest::newRow("altitude, at once") << 40.0 << 2.0 << 0.0 << 1 << 0.1;
    QTest::newRow("azimuth, at once") << 40.0 << 0.0 << 3.0 << 1 << 0.1;
    QTest::newRow("both, at once, south") << -34.0 << -1.5 << 2.0 << 1 << 0.1;
    QTest::newRow("both, 4' a frame") << 40.0 << 2.0 << -2.0 << 30 << 0.1;
    QTest::newRow("azimuth, far north, at once") << 70.0 << 0.0 << 4.0 << 1 << 0.1;
    QTest::newRow("azimuth, far north, slowly") << 70.0 << 0.0 << 4.0 << 60 << 0.1;
    // The vertical is so near the frame that it could be the RA axis, until that one turns.
    QTest::newRow("azimuth, very far north, at once") << 80.0 << 0.0 << 5.0 << 1 << 5.0;
    QTest::newRow("azimuth, very far north, slowly") << 80.0 << 0.0 << 5.0 << 60 << 5.0;
}

/// Somebody turns the bolts while the assistant waits for a turn of the RA axis: below 73 degrees
/// of latitude nothing of it counts as one, and the axis that is found afterwards is right.
void GuideMotionsTest::boltsAreNoTurn()
{
    QFETCH(double, latitude);
    QFETCH(double, altitude);
    QFETCH(double, azimuth);
    QFETCH(int, frames);
    virtualsky::SkyState sky = plainNight(latitude < 0.0);
    sky.latitude = latitude;
    PaintedMount mount(sky, settingsFor(sky));
    nextThatSays(mount, AdviceCode::TurnAxis);
    double most = 0.0;
    Status status;
    for (int i = 0; i < frames + 10; ++i) {
        virtualsky::SkyState moved = mount.sky();
        moved.boltAltitude += i < frames ? altitude / frames : 0.0;
        moved.boltAzimuth += i < frames ? azimuth / frames : 0.0;
        mount.setSky(moved);
        status = mount.next();
        most = std::max(most, status.axis.turnedDegrees);
        QVERIFY(status.stage == Stage::Axis);
    }
    QFETCH(double, counted);
    QVERIFY2(most <= counted, qPrintable(QString::number(most)));
    QVERIFY(turnAxisAsTold(mount));
    const auto after = nextFigure(mount);
    QVERIFY(after && isTrue(*after, mount));
}

QTEST_GUILESS_MAIN(GuideMotionsTest)
#include "tst_guidemotions.moc"
