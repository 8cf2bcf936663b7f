// SPDX-License-Identifier: MIT
// Do bolts, RA axis, tracking and the camera's place move the picture as a real mount does?
#include <QtTest>

#include "tests/virtualcamera/skytest.h"
#include "virtualcamera/mount.h"
#include "virtualcamera/truth.h"

using namespace skytest;

namespace
{
Point turnedAbout(const Point &centre, const Point &p, double clockwiseDegrees)
{
    const double c = std::cos(clockwiseDegrees * degree);
    const double s = std::sin(clockwiseDegrees * degree);
    const double x = p.x - centre.x;
    const double y = p.y - centre.y;
    return {centre.x + c * x - s * y, centre.y + s * x + c * y};
}

// Degrees clockwise on the screen from `a` to `b`, -180 to 180, seen from `centre`.
double clockwise(const Point &centre, const Point &a, const Point &b)
{
    const double angle =
        (std::atan2(b.y - centre.y, b.x - centre.x) - std::atan2(a.y - centre.y, a.x - centre.x)) /
        degree;
    return std::remainder(angle, 360.0);
}

void hemispheres()
{
    QTest::addColumn<bool>("south");
    QTest::newRow("north") << false;
    QTest::newRow("south") << true;
}
} // namespace

class MountTest : public QObject
{
    Q_OBJECT

private slots:
    void raTurnsPictureAboutAxis_data();
    void raTurnsPictureAboutAxis();
    void boltsLeaveTheAxisPoint_data();
    void boltsLeaveTheAxisPoint();
    void boltsMoveThePole_data();
    void boltsMoveThePole();
    void axisPointIsWhereTheCameraSits_data();
    void axisPointIsWhereTheCameraSits();
    void matrixIsARotation();
    void rollTurnsClockwise_data() { hemispheres(); }
    void rollTurnsClockwise();
    void skyTurnsWithoutTracking_data() { hemispheres(); }
    void skyTurnsWithoutTracking();
    void trackingHoldsTheStars_data() { hemispheres(); }
    void trackingHoldsTheStars();
    void rightAscensionGrows_data();
    void rightAscensionGrows();
    void plateScale();
    void behindTheCameraIsNoPlace();
};

void MountTest::raTurnsPictureAboutAxis_data()
{
    QTest::addColumn<bool>("south");
    QTest::addColumn<double>("angle");
    for (const bool south : {false, true})
        for (const double angle : {-360.0, -45.0, 30.0, 90.0, 180.0})
            QTest::newRow(
                qPrintable(QStringLiteral("%1 %2").arg(south ? "south" : "north").arg(angle)))
                << south << angle;
}

void MountTest::raTurnsPictureAboutAxis()
{
    QFETCH(bool, south);
    QFETCH(double, angle);
    SkyState state = quietState(south);
    state.boltAltitude = 0.6;
    state.boltAzimuth = -1.0;
    const Truth before = truth(state, may2024);
    state.raAngle = angle;
    const Truth after = truth(state, may2024);
    QVERIFY(distance(*before.axis, *after.axis) < 1e-9);
    const double sense = south ? -1.0 : 1.0;
    for (const auto star : {&Truth::starA, &Truth::starB, &Truth::starD, &Truth::pole}) {
        const Point expected = turnedAbout(*before.axis, *(before.*star), sense * angle);
        QVERIFY(distance(*(after.*star), expected) < 1e-6);
    }
}

void MountTest::boltsLeaveTheAxisPoint_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("altitude");
    QTest::addColumn<double>("azimuth");
    QTest::newRow("north altitude") << 40.0 << 2.0 << 0.0;
    QTest::newRow("north azimuth") << 40.0 << 0.0 << -3.0;
    QTest::newRow("south both") << -35.0 << -1.0 << 1.5;
    QTest::newRow("over the zenith") << 89.5 << 1.0 << 0.5;
    QTest::newRow("on the equator") << 0.0 << 1.0 << 1.0;
}

void MountTest::boltsLeaveTheAxisPoint()
{
    QFETCH(double, latitude);
    QFETCH(double, altitude);
    QFETCH(double, azimuth);
    SkyState state = quietState();
    state.latitude = latitude;
    state.axisX = 120.0;
    state.axisY = -75.0;
    state.roll = 20.0;
    const Truth before = truth(state, may2024);
    state.boltAltitude = altitude;
    state.boltAzimuth = azimuth;
    const Truth after = truth(state, may2024);
    QVERIFY(distance(*before.axis, *after.axis) < 1e-9);
    QVERIFY(distance(*before.pole, *before.axis) < 1e-6);
    QVERIFY(distance(*before.pole, *after.pole) > 100.0);
    QVERIFY(distance(*before.starB, *after.starB) > 100.0);
}

void MountTest::boltsMoveThePole_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("altitude");
    QTest::addColumn<double>("azimuth");
    QTest::addColumn<double>("x"); // pixels from the axis, by tan(angle) / tan(scale)
    QTest::addColumn<double>("y");
    const double oneDegree = std::tan(degree) / std::tan(pixelScale * arcsecond);
    const double slant = std::cos(degree * 40.0) * oneDegree;
    const double southSlant = std::cos(degree * 35.0) * oneDegree;
    QTest::newRow("north: axis raised, pole falls") << 40.0 << 1.0 << 0.0 << 0.0 << oneDegree;
    QTest::newRow("south: axis raised, pole falls") << -35.0 << 1.0 << 0.0 << 0.0 << oneDegree;
    // East is on the right when looking north and on the left when looking south.
    QTest::newRow("north: axis east, pole goes left") << 40.0 << 0.0 << 1.0 << -slant << 0.0;
    QTest::newRow("south: axis east, pole goes right") << -35.0 << 0.0 << 1.0 << southSlant << 0.0;
}

void MountTest::boltsMoveThePole()
{
    QFETCH(double, latitude);
    QFETCH(double, altitude);
    QFETCH(double, azimuth);
    QFETCH(double, x);
    QFETCH(double, y);
    SkyState state = quietState();
    state.latitude = latitude;
    state.boltAltitude = altitude;
    state.boltAzimuth = azimuth;
    const Truth seen = truth(state, may2024);
    // Along the vertical the azimuth circle is curved: 0.7 pixel at one degree.
    QVERIFY(std::abs(seen.pole->x - seen.axis->x - x) < 0.05);
    QVERIFY(std::abs(seen.pole->y - seen.axis->y - y) < 0.8);
    // Raised means seen with the zenith up.
    QVERIFY((axisDirection(state).z > poleDirection(state).z) == (altitude > 0.0));
}

void MountTest::axisPointIsWhereTheCameraSits_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::newRow("centre") << 0.0 << 0.0;
    QTest::newRow("right and up") << 200.5 << -100.25;
    QTest::newRow("outside the picture") << -900.0 << 700.0;
}

void MountTest::axisPointIsWhereTheCameraSits()
{
    QFETCH(double, x);
    QFETCH(double, y);
    for (const bool south : {false, true}) {
        SkyState state = quietState(south);
        state.axisX = x;
        state.axisY = y;
        state.boltAltitude = 1.0;
        state.raAngle = 77.0;
        const Truth seen = truth(state, may2024);
        QVERIFY(std::abs(seen.axis->x - (639.5 + x)) < 1e-9);
        QVERIFY(std::abs(seen.axis->y - (479.5 + y)) < 1e-9);
    }
}

void MountTest::matrixIsARotation()
{
    SkyState state = quietState(true);
    state.axisX = 300.0;
    state.boltAzimuth = 2.0;
    state.raAngle = 33.0;
    const auto &rows = cameraFromHorizon(state, may2024).rows;
    for (int i = 0; i < 3; ++i)
        for (int j = 0; j < 3; ++j)
            QVERIFY(
                std::abs(dot(rows[static_cast<std::size_t>(i)], rows[static_cast<std::size_t>(j)]) -
                         (i == j ? 1.0 : 0.0)) < 1e-12);
    // Right-handed: not mirrored.
    QVERIFY(std::abs(dot(cross(rows[0], rows[1]), rows[2]) - 1.0) < 1e-12);
}

void MountTest::rollTurnsClockwise()
{
    QFETCH(bool, south);
    SkyState state = quietState(south);
    const Truth before = truth(state, may2024);
    state.roll = 40.0;
    const Truth after = truth(state, may2024);
    QVERIFY(std::abs(clockwise(*before.axis, *before.starA, *after.starA) - 40.0) < 1e-6);
}

void MountTest::skyTurnsWithoutTracking()
{
    QFETCH(bool, south);
    const SkyState state = quietState(south);
    const Truth before = truth(state, may2024);
    const Truth after = truth(state, may2024 + 3600.0);
    // Looking north the sky turns counter-clockwise, looking south clockwise: 15.041 degrees an
    // hour.
    const double turn = clockwise(*before.axis, *before.starD, *after.starD);
    QVERIFY2(std::abs(turn - (south ? 15.0411 : -15.0411)) < 0.003,
             qPrintable(QString::number(turn)));
}

void MountTest::trackingHoldsTheStars()
{
    QFETCH(bool, south);
    SkyState state = quietState(south);
    state.tracking = true;
    state.trackingSince = may2024;
    const Truth before = truth(state, may2024);
    const Truth aligned = truth(state, may2024 + 7200.0);
    QVERIFY(distance(*before.starB, *aligned.starB) < 0.02); // aberration's change
    state.boltAltitude = 1.0;
    const Truth first = truth(state, may2024);
    const Truth later = truth(state, may2024 + 7200.0);
    QVERIFY(distance(*first.axis, *later.axis) < 1e-9);
    // With a misaligned axis the pole and the stars drift: two hours are 30.08 degrees about it.
    const double radius = distance(*first.pole, *first.axis);
    const double drift = 2.0 * radius * std::sin(15.041 * degree);
    QVERIFY(std::abs(distance(*first.pole, *later.pole) - drift) < 0.1);
}

void MountTest::rightAscensionGrows_data()
{
    QTest::addColumn<bool>("south");
    QTest::addColumn<double>("sense"); // clockwise = +1
    QTest::newRow("north: clockwise") << false << 1.0;
    QTest::newRow("south: counter-clockwise") << true << -1.0;
}

void MountTest::rightAscensionGrows()
{
    QFETCH(bool, south);
    QFETCH(double, sense);
    SkyState state = quietState(south);
    const PlaceInPicture where(state, may2024);
    const double latitude = (south ? -1.0 : 1.0) * 87.0 * degree;
    for (int ra = 0; ra < 360; ra += 30) {
        const Point here = *where.ofCirs(direction(ra * degree, latitude));
        const Point next = *where.ofCirs(direction((ra + 10) * degree, latitude));
        const Point pole = *truth(state, may2024).pole;
        QVERIFY(std::abs(clockwise(pole, here, next) - sense * 10.0) < 1e-6);
    }
}

void MountTest::plateScale()
{
    const SkyState state = quietState();
    const PlaceInPicture where(state, may2024);
    const Point near = *where.ofCirs(direction(1.0, pi / 2.0 - 60.0 * arcsecond));
    QVERIFY(std::abs(distance(near, *truth(state, may2024).pole) - 60.0 / 30.45) < 1e-6);
    // Gnomonic: tan at 5 degrees.
    const Point far = *where.ofCirs(direction(1.0, 85.0 * degree));
    QVERIFY(std::abs(distance(far, *truth(state, may2024).pole) -
                     std::tan(5.0 * degree) / std::tan(30.45 * arcsecond)) < 1e-6);
}

void MountTest::behindTheCameraIsNoPlace()
{
    QVERIFY(!project({0.0, 0.0, -1.0}));
    QVERIFY(!project({1.0, 0.0, 0.0}));
    QVERIFY(!project({0.99, 0.0, std::nan("")}));
    const Point pixel = {12.25, 900.5};
    QVERIFY(distance(*project(unproject(pixel)), pixel) < 1e-9);
}

QTEST_GUILESS_MAIN(MountTest)
#include "tst_mount.moc"
