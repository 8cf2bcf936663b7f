// SPDX-License-Identifier: MIT
// With few stars, is the pole's claimed error honest, with a lens that distorts and without?
//
// No picture is drawn: pinhole cameras at random, the brightest stars of the catalogue in each
// frame, and centroid errors as their signal-to-noise has them.
#include "astrometry/catalogue.h"
#include "astrometry/places.h"
#include "bench/recognition/statistics.h"
#include "recognition/recognise.h"

#include <QtTest>
#include <algorithm>
#include <cmath>
#include <random>

using namespace recognition;
using astrometry::Vector3;

namespace
{
constexpr double date = 1795204800.0;
constexpr int width = 1280, height = 960;
constexpr double scale = 30.45;  // arcseconds a pixel
constexpr double farthest = 8.0; // degrees of the frame's centre from the pole
constexpr double faintestSnr = 5.0;

double between(std::mt19937_64 &random, double least, double greatest)
{
    return std::uniform_real_distribution<double>(least, greatest)(random);
}

class Camera
{
public:
    /// @param distortion of the places, relative, in the frame's corners
    Camera(std::mt19937_64 &random, double distortion) : drawnOut(distortion)
    {
        sign = between(random, 0.0, 1.0) < 0.5 ? -1.0 : 1.0;
        const double off = farthest * std::sqrt(between(random, 0.0, 1.0));
        forward = astrometry::direction(between(random, 0.0, 2.0 * astrometry::pi),
                                        sign * (90.0 - off) * astrometry::degree);
        const Vector3 across = cross(Vector3{0.0, 0.0, 1.0}, forward);
        const Vector3 level = scaled(across, 1.0 / length(across));
        const Vector3 third = cross(forward, level);
        const double turn = between(random, 0.0, 2.0 * astrometry::pi);
        const double c = std::cos(turn), s = std::sin(turn);
        right = {c * level.x + s * third.x, c * level.y + s * third.y, c * level.z + s * third.z};
        down = cross(forward, right);
    }

    std::optional<PixelPlace> placeOf(const Vector3 &sky) const
    {
        const double ahead = dot(sky, forward);
        if (ahead < 0.3)
            return std::nullopt;
        const double focalLength = 1.0 / std::tan(scale * astrometry::arcsecond);
        const double x = dot(sky, right) * focalLength / ahead;
        const double y = dot(sky, down) * focalLength / ahead;
        const double corner = 0.5 * std::hypot(width, height);
        const double factor = 1.0 + drawnOut * (x * x + y * y) / (corner * corner);
        return PixelPlace{x * factor + 0.5 * (width - 1), y * factor + 0.5 * (height - 1)};
    }
    PixelPlace pole() const { return placeOf({0.0, 0.0, sign}).value(); }

private:
    double drawnOut, sign;
    Vector3 right, down, forward;
};

struct Seen {
    double magnitude;
    PixelPlace place;
};

/// Brightest first.
std::vector<Seen> starsIn(const Camera &camera, const std::vector<Vector3> &places)
{
    std::vector<Seen> seen;
    const astrometry::CatalogueStar *star = astrometry::catalogue().begin();
    for (const Vector3 &place : places) {
        const double magnitude = (star++)->vMagnitude;
        const auto at = camera.placeOf(place);
        if (at && at->x > 4.0 && at->y > 4.0 && at->x < width - 5 && at->y < height - 5)
            seen.push_back({magnitude, *at});
    }
    std::sort(seen.begin(), seen.end(),
              [](const Seen &a, const Seen &b) { return a.magnitude < b.magnitude; });
    return seen;
}

/// As they are measured, brightest first.
std::vector<DetectedStar> measured(const std::vector<Seen> &seen, std::size_t count,
                                   std::mt19937_64 &random)
{
    std::normal_distribution<double> normal;
    const double fwhm = between(random, 2.0, 6.5);
    std::vector<DetectedStar> stars;
    for (std::size_t i = 0; i < count; ++i) {
        const double fainter = seen[count - 1].magnitude - seen[i].magnitude;
        const double snr = std::min(faintestSnr * std::pow(10.0, 0.4 * fainter), 300.0);
        const double sigma = std::hypot(0.6 * fwhm / snr, 0.03); // pixels, one axis
        const double flux = std::max(snr + normal(random), 4.0);
        const double x = seen[i].place.x + sigma * normal(random);
        const double y = seen[i].place.y + sigma * normal(random);
        stars.push_back({x, y, flux, flux, fwhm, false});
    }
    std::sort(stars.begin(), stars.end(),
              [](const DetectedStar &a, const DetectedStar &b) { return a.flux > b.flux; });
    return stars;
}
} // namespace

class FewStarsTest : public QObject
{
    Q_OBJECT

private slots:
    void claimsAreHonest_data();
    void claimsAreHonest();
};

void FewStarsTest::claimsAreHonest_data()
{
    QTest::addColumn<double>("distortion");
    QTest::addColumn<int>("least"); // stars
    QTest::addColumn<int>("most");
    QTest::newRow("12 to 19 stars, no distortion") << 0.0 << 12 << 19;
    QTest::newRow("20 to 30 stars, no distortion") << 0.0 << 20 << 30;
    QTest::newRow("20 to 30 stars, 1 % in the corners") << 0.01 << 20 << 30;
    QTest::newRow("40 to 60 stars, 0.3 % in the corners") << 0.003 << 40 << 60;
}

void FewStarsTest::claimsAreHonest()
{
    QFETCH(double, distortion);
    QFETCH(int, least);
    QFETCH(int, most);
    constexpr int frames = 400;
    const astrometry::CatalogueView catalogue = astrometry::catalogue();
    const auto places = astrometry::apparentPlaces(catalogue.begin(), catalogue.end(), date);
    std::mt19937_64 random(21);
    int inside = 0, tried = 0, lost = 0;
    while (tried < frames) {
        const Camera camera(random, distortion);
        const std::vector<Seen> seen = starsIn(camera, places);
        const std::size_t count = std::uniform_int_distribution<std::size_t>(
            std::size_t(least), std::size_t(most))(random);
        if (seen.size() < count)
            continue;
        RecognitionOptions options;
        options.utcSeconds = date;
        const Recognition found = recognise(measured(seen, count, random), width, height, options);
        if (found.status != RecognitionStatus::Recognised) {
            ++lost;
            continue;
        }
        const PixelPlace pole = camera.pole();
        inside += squaredSigmas(found.pole.x - pole.x, found.pole.y - pole.y,
                                found.poleCovariance) <= twoSigmaEllipse;
        ++tried;
    }
    QVERIFY2(lost <= 0.02 * tried, qPrintable(QString::number(lost)));
    QVERIFY2(inside >= 0.92 * tried && inside <= 0.98 * tried,
             qPrintable(QStringLiteral("%1 of %2").arg(inside).arg(tried)));
}

QTEST_GUILESS_MAIN(FewStarsTest)
#include "tst_fewstars.moc"
