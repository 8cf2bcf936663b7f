// SPDX-License-Identifier: MIT
// Does the truth match the rendered picture, and give the error of the bolts?
#include <QtTest>
#include <complex>
#include <numeric>
#include <vector>

#include "tests/virtualcamera/skytest.h"
#include "virtualcamera/truth.h"

using namespace skytest;

namespace
{
using Complex = std::complex<double>;

Complex complexOf(const Point &p)
{
    return {p.x, p.y};
}

// Worst distance after the best shift, turn and scale of `from` onto `to` (not mirrored).
double similarityResidual(const std::vector<Complex> &from, const std::vector<Complex> &to,
                          double *scale)
{
    const double n = static_cast<double>(from.size());
    const Complex meanFrom = std::accumulate(from.begin(), from.end(), Complex()) / n;
    const Complex meanTo = std::accumulate(to.begin(), to.end(), Complex()) / n;
    Complex product = 0.0;
    double square = 0.0;
    for (std::size_t i = 0; i < from.size(); ++i) {
        product += std::conj(from[i] - meanFrom) * (to[i] - meanTo);
        square += std::norm(from[i] - meanFrom);
    }
    const Complex factor = product / square;
    double worst = 0.0;
    for (std::size_t i = 0; i < from.size(); ++i)
        worst = std::max(worst, std::abs(factor * (from[i] - meanFrom) - (to[i] - meanTo)));
    *scale = std::abs(factor);
    return worst;
}

// Smart's formula at 760 mm of mercury and 10 degrees, arcseconds, for an unrefracted zenith
// distance in degrees; the formula itself asks for the refracted one.
double textbookRefraction(double zenithDistance)
{
    double lift = 0.0;
    for (int i = 0; i < 5; ++i) {
        const double tangent = std::tan((zenithDistance - lift / 3600.0) * degree);
        lift = (58.294 * tangent - 0.0668 * tangent * tangent * tangent) * 1010.0 / 1013.25;
    }
    return lift;
}
} // namespace

class TruthTest : public QObject
{
    Q_OBJECT

private slots:
    void poleErrorIsTheBolts_data();
    void poleErrorIsTheBolts();
    void templateGeometryAgrees_data();
    void templateGeometryAgrees();
    void photographsAgree_data();
    void photographsAgree();
    void centroidsAgree_data();
    void centroidsAgree();
    void refractionLiftsThePole_data();
    void refractionLiftsThePole();
    void starsTurnAboutTheRefractedPole();
    void defaultsAreAboutADegreeOff();
    void rangesEndInDefinedPlaces_data();
    void rangesEndInDefinedPlaces();
};

void TruthTest::poleErrorIsTheBolts_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("boltAltitude");
    QTest::addColumn<double>("boltAzimuth");
    QTest::addColumn<double>("altitude"); // arcseconds
    QTest::addColumn<double>("azimuth");
    QTest::addColumn<double>("tolerance");
    QTest::newRow("none") << 40.0 << 0.0 << 0.0 << 0.0 << 0.0 << 1e-6;
    QTest::newRow("altitude up") << 40.0 << 0.5 << 0.0 << 1800.0 << 0.0 << 1e-6;
    QTest::newRow("altitude down, south") << -35.0 << -0.5 << 0.0 << -1800.0 << 0.0 << 1e-6;
    // A rotation about the vertical shows on the sky times the cosine of the altitude.
    QTest::newRow("azimuth at 60 degrees") << 60.0 << 0.0 << 0.1 << 0.0 << 180.0 << 0.4;
    QTest::newRow("azimuth at 60 south") << -60.0 << 0.0 << 0.1 << 0.0 << 180.0 << 0.4;
    QTest::newRow("azimuth at the pole") << 90.0 << 0.0 << 1.0 << 0.0 << 0.0 << 1e-6;
    QTest::newRow("both at the equator") << 0.0 << 0.3 << -0.4 << 1080.0 << -1440.0 << 0.1;
}

void TruthTest::poleErrorIsTheBolts()
{
    QFETCH(double, latitude);
    QFETCH(double, boltAltitude);
    QFETCH(double, boltAzimuth);
    QFETCH(double, altitude);
    QFETCH(double, azimuth);
    QFETCH(double, tolerance);
    SkyState state = quietState();
    state.latitude = latitude;
    state.boltAltitude = boltAltitude;
    state.boltAzimuth = boltAzimuth;
    const Truth seen = truth(state, may2024);
    QVERIFY(std::abs(seen.altitudeError - altitude) < tolerance);
    QVERIFY(std::abs(seen.azimuthError - azimuth) < tolerance);
    QVERIFY(std::abs(seen.poleError - std::hypot(altitude, azimuth)) < tolerance);
}

void TruthTest::templateGeometryAgrees_data()
{
    QTest::addColumn<bool>("south");
    QTest::addColumn<double>("hour");
    QTest::addColumn<double>("scale"); // arcseconds a template pixel
    for (const double hour : {0.0, 7.0, 4000.0})
        for (const bool south : {false, true})
            QTest::newRow(
                qPrintable(QStringLiteral("%1, hour %2").arg(south ? "south" : "north").arg(hour)))
                << south << hour << (south ? 30.620 : 30.454);
}

void TruthTest::templateGeometryAgrees()
{
    QFETCH(bool, south);
    QFETCH(double, hour);
    QFETCH(double, scale);
    // The template images' own pixels of stars A, B and D.
    const std::vector<Complex> pixels =
        south ? std::vector<Complex>{Complex(227, 405), Complex(400, 337), Complex(228, 563)}
              : std::vector<Complex>{Complex(445, 218), Complex(400, 400), Complex(648, 495)};
    const Truth seen = truth(quietState(south), may2024 + hour * 3600.0);
    const std::vector<Complex> stars = {complexOf(*seen.starA), complexOf(*seen.starB),
                                        complexOf(*seen.starD)};
    double factor = 0.0;
    const double worst = similarityResidual(pixels, stars, &factor);
    QVERIFY2(worst < 1.0, qPrintable(QString::number(worst)));
    QVERIFY2(std::abs(factor * 30.45 - scale) < 0.02, qPrintable(QString::number(factor * 30.45)));
}

void TruthTest::photographsAgree_data()
{
    QTest::addColumn<bool>("south");
    QTest::addColumn<QVector<double>>("places"); // A, B, D and pole, x and y each
    // From an independent plate solution of photographs taken in December 2014, at this scale.
    QTest::newRow("north") << false << QVector<double>{353.10, 392.37, 292.59, 213.79,
                                                       34.01,  268.93, 341.24, 277.18};
    QTest::newRow("south") << true << QVector<double>{706.75, 341.23, 883.80, 281.93,
                                                      699.26, 499.39, 763.84, 334.37};
}

void TruthTest::photographsAgree()
{
    QFETCH(bool, south);
    QFETCH(QVector<double>, places);
    std::vector<Complex> measured;
    for (int i = 0; i < 8; i += 2)
        measured.emplace_back(places[i], places[i + 1]);
    const double december2014 = 1418644800.0;
    // The camera is aimed as for the photograph: the pole at its place, star B in its direction.
    SkyState state = quietState(south);
    state.axisX = places[6] - centreX;
    state.axisY = places[7] - centreY;
    const auto look = [&state, december2014] {
        const Truth seen = truth(state, december2014);
        return std::vector<Complex>{complexOf(*seen.starA), complexOf(*seen.starB),
                                    complexOf(*seen.starD), complexOf(*seen.pole)};
    };
    const std::vector<Complex> upright = look();
    state.roll = std::arg((measured[1] - measured[3]) / (upright[1] - upright[3])) / degree;
    double factor = 0.0;
    const double worst = similarityResidual(look(), measured, &factor);
    // One pixel and one percent for the effects of the photographs' lenses and of the air.
    QVERIFY2(worst < 1.0, qPrintable(QString::number(worst)));
    QVERIFY2(std::abs(factor - 1.0) < 0.01, qPrintable(QString::number(factor)));
}

void TruthTest::centroidsAgree_data()
{
    QTest::addColumn<bool>("south");
    QTest::addColumn<double>("raAngle");
    QTest::addColumn<bool>("refraction");
    QTest::addColumn<int>("star");
    QTest::addColumn<double>("exposure"); // seconds; short enough not to saturate
    const double exposures[2][3] = {{0.5, 0.008, 0.25}, {1.0, 0.25, 0.7}};
    for (const bool south : {false, true})
        for (const double angle : {0.0, 61.7, 190.3})
            for (int star = 0; star < 3; ++star)
                QTest::newRow(qPrintable(QStringLiteral("%1 %2 at %3")
                                             .arg(south ? "south" : "north")
                                             .arg(QChar("ABD"[star]))
                                             .arg(angle)))
                    << south << angle << (angle > 100.0) << star << exposures[south ? 1 : 0][star];
}

void TruthTest::centroidsAgree()
{
    QFETCH(bool, south);
    QFETCH(double, raAngle);
    QFETCH(bool, refraction);
    QFETCH(int, star);
    QFETCH(double, exposure);
    SkyState state = quietState(south);
    state.raAngle = raAngle;
    state.refraction = refraction;
    state.boltAltitude = 0.2;
    const Truth seen = truth(state, may2024);
    const Point place =
        *std::array{seen.starA, seen.starB, seen.starD}[static_cast<std::size_t>(star)];
    virtualsky::Scene scene;
    std::vector<ImagedStar> stars = scene.starsAt(state, may2024);
    // Neighbours would shift the plain centroid.
    stars.erase(
        std::remove_if(stars.begin(), stars.end(),
                       [&](const ImagedStar &s) { return distance(s.place, place) > 0.01; }),
        stars.end());
    QCOMPARE(stars.size(), std::size_t{1});
    state.skyMagnitude = 25.0;
    const Frame frame = render(state, stars, {exposure, 50.0, 1});
    const Point found = centroid(frame, place, 8);
    QVERIFY(frame.at(static_cast<int>(std::lround(place.x)),
                     static_cast<int>(std::lround(place.y))) < 255);
    QVERIFY2(distance(found, place) < 0.02, qPrintable(QString::number(distance(found, place))));
}

void TruthTest::refractionLiftsThePole_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<bool>("on");
    QTest::newRow("off") << 40.0 << false;
    QTest::newRow("north") << 40.0 << true;
    QTest::newRow("south") << -35.0 << true;
    QTest::newRow("low") << 10.0 << true;
}

void TruthTest::refractionLiftsThePole()
{
    QFETCH(double, latitude);
    QFETCH(bool, on);
    SkyState state = quietState();
    state.latitude = latitude;
    state.refraction = on;
    const Truth seen = truth(state, may2024);
    // The picture's vertical is the true vertical, so the lift is straight up: -y.
    const double expected = on ? textbookRefraction(90.0 - std::abs(latitude)) / 30.45 : 0.0;
    QVERIFY(std::abs(seen.refractedPole->x - seen.pole->x) < 1e-6);
    const double lift = seen.pole->y - seen.refractedPole->y;
    QVERIFY2(std::abs(lift - expected) <= 0.01 * expected + 1e-6,
             qPrintable(QString::number(lift)));
    QVERIFY(distance(*seen.pole, *seen.axis) < 1e-6);
    QCOMPARE(seen.poleError, 0.0);
}

void TruthTest::starsTurnAboutTheRefractedPole()
{
    SkyState state = quietState();
    state.refraction = true;
    state.latitude = 30.0;
    const Truth first = truth(state, may2024);
    const Truth half = truth(state, may2024 + 43082.0); // half a sidereal day
    const Point between = {(first.starB->x + half.starB->x) / 2.0,
                           (first.starB->y + half.starB->y) / 2.0};
    QVERIFY(distance(between, *first.refractedPole) < 0.1);
    QVERIFY(distance(between, *first.pole) > 3.0);
}

void TruthTest::defaultsAreAboutADegreeOff()
{
    const Truth seen = truth(SkyState(), may2024);
    QVERIFY(std::abs(seen.poleError - 3600.0) < 200.0);
    for (const auto &place : {seen.axis, seen.pole, seen.starA, seen.starB})
        QVERIFY(place && place->x > 50 && place->x < 1230 && place->y > 50 && place->y < 910);
}

void TruthTest::rangesEndInDefinedPlaces_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    QTest::addColumn<double>("bolt");
    QTest::addColumn<double>("seconds");
    const double first = 94694400.0, last = 4133980799.0; // 1973 and the end of 2100
    QTest::newRow("north pole") << 90.0 << 180.0 << 20.0 << last;
    QTest::newRow("south pole") << -90.0 << -180.0 << -20.0 << last;
    QTest::newRow("equator") << 0.0 << 0.0 << -20.0 << first;
    QTest::newRow("just south of it") << -1e-9 << 0.0 << 20.0 << first;
}

void TruthTest::rangesEndInDefinedPlaces()
{
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    QFETCH(double, bolt);
    QFETCH(double, seconds);
    for (const bool refraction : {false, true}) {
        SkyState state = quietState();
        state.latitude = latitude;
        state.longitude = longitude;
        state.boltAltitude = state.boltAzimuth = bolt;
        state.refraction = refraction;
        const Truth seen = truth(state, seconds);
        for (const auto &place : {seen.axis, seen.pole, seen.refractedPole, seen.starA, seen.starB})
            QVERIFY(place && std::abs(place->x) < 1e5 && std::abs(place->y) < 1e5);
        QVERIFY(distance(*seen.axis, {centreX, centreY}) < 1e-6);
        QVERIFY(seen.poleError > 19.9 * 3600.0 && seen.poleError < 29.0 * 3600.0);
        // The pole and star B stay close: 0.7 degrees in 1973, half a degree in 2100.
        const double apart = distance(*seen.pole, *seen.starB) * pixelScale / 3600.0;
        QVERIFY(apart > 0.3 && apart < 1.8);
    }
}

QTEST_GUILESS_MAIN(TruthTest)
#include "tst_truth.moc"
