// SPDX-License-Identifier: MIT
// Does the assistant say how far outside the picture the pole is, and which way, as long as the
// picture shows sky that the catalogue knows?
#include "tests/assistant/guidetest.h"

#include "astrometry/vector3.h"
#include "virtualcamera/scene.h"

#include <random>

using namespace assistant;
using virtualsky::Point;

namespace
{
constexpr double catalogueRadius = 11.0; // degrees about the pole

/// Degrees from the picture's centre to a pixel so far off.
double offCentre(double pixels)
{
    return std::atan(pixels * virtualsky::pixelScale * astrometry::arcsecond) / astrometry::degree;
}
const double halfWidth = offCentre(640.0), halfHeight = offCentre(480.0);

/// Degrees.
double angleOf(const Point &a, const Point &b)
{
    return astrometry::angleBetween(virtualsky::unproject(a), virtualsky::unproject(b)) /
           astrometry::degree;
}

/// The catalogue ends 11 degrees from the pole, the sky does not: beyond, as many stars in a square
/// degree as inside, of the same magnitudes, at random places.
void addOthers(std::vector<virtualsky::ImagedStar> &stars, const Point &pole, std::uint64_t seed)
{
    constexpr double perSquareDegree = 3.6; // 1375 stars within 11 degrees
    std::mt19937_64 random(seed);
    std::uniform_real_distribution<double> x(-0.5, virtualsky::sensorWidth - 0.5);
    std::uniform_real_distribution<double> y(-0.5, virtualsky::sensorHeight - 0.5);
    const auto &all = astrometry::catalogue();
    std::uniform_int_distribution<std::ptrdiff_t> any(0, all.end() - all.begin() - 1);
    const int number = int(perSquareDegree * 4.0 * halfWidth * halfHeight);
    for (int i = 0; i < number; ++i) {
        const Point place = {x(random), y(random)};
        const auto &star = *(all.begin() + any(random));
        if (angleOf(place, pole) > catalogueRadius)
            stars.push_back({place, star.vMagnitude, star.bMinusV});
    }
}

/// A camera that looks so many degrees past the pole, on a mount at rest.
class AwayFromThePole
{
public:
    AwayFromThePole(const virtualsky::SkyState &state, std::uint64_t starsSeed)
        : sky(state), seed(starsSeed), guide(settingsFor(state))
    {
    }

    Status next()
    {
        const double exposure = guide.wantedExposure().value_or(lastExposure);
        lastExposure = exposure;
        elapsed += 1.0;
        const double utc = *sky.date + elapsed;
        std::vector<virtualsky::ImagedStar> stars = scene.starsAt(sky, utc);
        addOthers(stars, *virtualsky::truth(sky, utc).pole, seed);
        cv::Mat frame(virtualsky::sensorHeight, virtualsky::sensorWidth, CV_8UC1);
        sensor.render(sky, stars, {}, {exposure * 1e-6, 50.0, ++number}, frame.data);
        return guide.observe({frame, utc, elapsed, exposure, true});
    }

private:
    virtualsky::SkyState sky;
    std::uint64_t seed;
    Guide guide;
    virtualsky::Scene scene;
    virtualsky::Sensor sensor;
    double lastExposure = 200000.0; // microseconds
    double elapsed = 0.0;
    std::uint64_t number = 0;
};
} // namespace

class PoleOutsideTest : public QObject
{
    Q_OBJECT

private slots:
    void isSaid_data();
    void isSaid();
};

void PoleOutsideTest::isSaid_data()
{
    QTest::addColumn<bool>("south");
    QTest::addColumn<double>("beyond"); // degrees from the picture's edge to the pole
    QTest::addColumn<double>("roll");
    for (const double beyond : {3.0, 6.0, 9.0}) {
        QTest::addRow("%g above", beyond) << false << beyond << 0.0;
        QTest::addRow("%g on the right", beyond) << false << beyond << 90.0;
        QTest::addRow("%g below, south", beyond) << true << beyond << 180.0;
        QTest::addRow("%g on the left, south", beyond) << true << beyond << -90.0;
    }
}

/// The camera looks below the pole, so that the roll is the pole's direction in the picture.
void PoleOutsideTest::isSaid()
{
    QFETCH(bool, south);
    QFETCH(double, beyond);
    QFETCH(double, roll);
    const double half = std::abs(roll) == 90.0 ? halfWidth : halfHeight;
    virtualsky::SkyState sky = plainNight(south);
    sky.boltAltitude = -(beyond + half);
    sky.boltAzimuth = 0.0;
    sky.axisX = sky.axisY = 0.0;
    sky.roll = roll;
    sky.refraction = false;
    AwayFromThePole camera(sky, std::uint64_t(beyond));
    Status status;
    for (int i = 0; i < 12 && !says(status, AdviceCode::PoleThatWay); ++i)
        status = camera.next();
    const Advice *const advice = adviceIn(status, AdviceCode::PoleThatWay);
    QVERIFY2(advice, qPrintable(QString::number(int(status.advice.front().code))));
    const QString said = QStringLiteral("%1, %2").arg(advice->first).arg(advice->second);
    QVERIFY2(std::abs(advice->first - beyond) < 0.1, qPrintable(said));
    QVERIFY2(std::abs(std::remainder(advice->second - roll, 360.0)) < 1.0, qPrintable(said));
}

QTEST_GUILESS_MAIN(PoleOutsideTest)
#include "tst_poleoutside.moc"
