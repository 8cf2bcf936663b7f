// SPDX-License-Identifier: MIT
// Are the stars where astropy puts them?
#include <QFile>
#include <QtTest>

#include "virtualcamera/astrometry.h"

using namespace virtualsky;

namespace
{
// The two programs agree within a few milliarcseconds; the sky promises one arcsecond.
constexpr double toleranceArcseconds = 0.05;

Vector3 horizonOf(double altitudeDegrees, double azimuthDegrees)
{
    const Vector3 northFirst =
        astrometry::direction(azimuthDegrees * degree, altitudeDegrees * degree);
    return {northFirst.y, northFirst.x, northFirst.z};
}
} // namespace

class AstrometryTest : public QObject
{
    Q_OBJECT

private slots:
    void agreesWithAstropy_data();
    void agreesWithAstropy();
    void refractionLiftsTowardsTheZenith();
    void refractionStaysBoundedBelowTheHorizon_data();
    void refractionStaysBoundedBelowTheHorizon();
    void catalogueIsComplete();
    void templateStarsAreInTheCatalogue_data();
    void templateStarsAreInTheCatalogue();
    void skyTurnsWestwards();
};

void AstrometryTest::agreesWithAstropy_data()
{
    QTest::addColumn<QList<double>>("v");
    QFile file(QStringLiteral(TEST_SOURCE_DIR "/golden/places.csv"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    while (!file.atEnd()) {
        const QByteArray line = file.readLine().trimmed();
        QList<double> values;
        for (const QByteArray &field : line.split(','))
            values.append(field.toDouble());
        QCOMPARE(values.size(), 9);
        const QList<QByteArray> f = line.split(',');
        QTest::newRow((f[0] + " site " + f[1] + ' ' + f[2] + " star " + f[3]).constData())
            << values;
    }
}

void AstrometryTest::agreesWithAstropy()
{
    QFETCH(QList<double>, v);
    const Site site = {v[1], v[2]};
    const CatalogueStar &star = nearestStar(v[3], v[4]);
    QCOMPARE(star.raDegrees, v[3]);
    QCOMPARE(star.decDegrees, v[4]);
    const Vector3 cirs = apparentPlaces(&star, &star + 1, site, v[0]).front();
    const Vector3 horizon = apply(horizonFromCirs(site, v[0]), cirs);
    const double plain = angleBetween(horizon, horizonOf(v[5], v[6])) / arcsecond;
    QVERIFY2(plain < toleranceArcseconds, qPrintable(QString::number(plain)));
    const Vector3 lifted = refracted(horizon, refractionConstants(1010.0, 10.0, 0.5));
    const double error = angleBetween(lifted, horizonOf(v[7], v[8])) / arcsecond;
    QVERIFY2(error < toleranceArcseconds, qPrintable(QString::number(error)));
}

void AstrometryTest::refractionLiftsTowardsTheZenith()
{
    const RefractionConstants air = refractionConstants(1010.0, 10.0, 0.5);
    const Vector3 star = horizonOf(40.0, 300.0);
    const Vector3 seen = refracted(star, air);
    QVERIFY(std::abs(length(seen) - 1.0) < 1e-9);
    QVERIFY(seen.z > star.z);
    QVERIFY(std::abs(std::atan2(seen.x, seen.y) - std::atan2(star.x, star.y)) < 1e-12);
    // 58.3" tan z of the textbooks at 1010 hPa and 10 degrees, within an arcsecond.
    const double lift = angleBetween(star, seen) / arcsecond;
    QVERIFY2(std::abs(lift - 58.3 / std::tan(40.0 * degree)) < 1.5,
             qPrintable(QString::number(lift)));
    QCOMPARE(angleBetween(star, refracted(star, refractionConstants(0.0, 10.0, 0.5))), 0.0);
}

void AstrometryTest::refractionStaysBoundedBelowTheHorizon_data()
{
    QTest::addColumn<double>("altitude");
    for (const double altitude : {90.0, 3.0, 0.0, -0.5, -45.0, -90.0})
        QTest::newRow(qPrintable(QString::number(altitude))) << altitude;
}

void AstrometryTest::refractionStaysBoundedBelowTheHorizon()
{
    QFETCH(double, altitude);
    const Vector3 star = horizonOf(altitude, 10.0);
    const Vector3 seen = refracted(star, refractionConstants(1010.0, 10.0, 0.5));
    QVERIFY(std::abs(length(seen) - 1.0) < 1e-6);
    QVERIFY(angleBetween(star, seen) < 0.5 * degree);
}

void AstrometryTest::catalogueIsComplete()
{
    QFile file(QStringLiteral(PROJECT_SOURCE_DIR "/astrometry/pole_stars.csv"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    file.readLine();
    const CatalogueStar *star = catalogue().begin();
    while (!file.atEnd()) {
        const QList<QByteArray> field = file.readLine().split(',');
        QVERIFY(star != catalogue().end());
        const double values[] = {star->raDegrees, star->decDegrees, star->pmRaCosDec, star->pmDec,
                                 star->parallax,  star->vMagnitude, star->bMinusV};
        for (int i = 0; i < 7; ++i)
            QCOMPARE(values[i], field[i].toDouble());
        ++star;
    }
    QVERIFY(star == catalogue().end());
    QCOMPARE(catalogue().size(), std::size_t{2750});
}

void AstrometryTest::templateStarsAreInTheCatalogue_data()
{
    QTest::addColumn<bool>("south");
    QTest::addColumn<int>("star");
    QTest::addColumn<double>("magnitude");
    QTest::addColumn<double>("ra");
    QTest::addColumn<double>("dec");
    QTest::newRow("north A") << false << 0 << 6.3 << 259.23525 << 89.03772;
    QTest::newRow("north B") << false << 1 << 2.0 << 37.95454 << 89.26411;
    QTest::newRow("north D") << false << 2 << 5.6 << 351.75363 << 87.30750;
    QTest::newRow("south A") << true << 0 << 7.2 << 130.52279 << -89.46053;
    QTest::newRow("south B") << true << 1 << 5.5 << 317.19517 << -88.95650;
    QTest::newRow("south D") << true << 2 << 6.6 << 184.69192 << -88.41492;
}

void AstrometryTest::templateStarsAreInTheCatalogue()
{
    QFETCH(bool, south);
    QFETCH(int, star);
    QFETCH(double, magnitude);
    QFETCH(double, ra);
    QFETCH(double, dec);
    const CatalogueStar &found = templateStar(south, static_cast<TemplateStar>(star));
    QVERIFY(std::abs(found.vMagnitude - magnitude) < 0.1);
    QVERIFY(angleBetween(astrometry::direction(found.raDegrees * degree, found.decDegrees * degree),
                         astrometry::direction(ra * degree, dec * degree)) < arcsecond);
}

void AstrometryTest::skyTurnsWestwards()
{
    // Below the pole, on the northern horizon side, stars move east; above it they move west.
    const Site site = {40.0, 0.0};
    const double turn = 360.98564736629 / 86400.0; // degrees a second
    const Matrix3 before = horizonFromCirs(site, 1.7e9);
    const Matrix3 after = horizonFromCirs(site, 1.7e9 + 60.0);
    const Vector3 aboveThePole = horizonOf(50.0, 0.0);
    const Vector3 moved = apply(after, apply(transposed(before), aboveThePole));
    QVERIFY(moved.x < 0.0);
    const double arc = angleBetween(aboveThePole, moved);
    const double expected = 60.0 * turn * degree * std::sin(10.0 * degree);
    QVERIFY(std::abs(arc - expected) < 0.1 * arcsecond);
}

QTEST_GUILESS_MAIN(AstrometryTest)
#include "tst_astrometry.moc"
