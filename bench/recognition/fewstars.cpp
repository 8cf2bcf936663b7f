// SPDX-License-Identifier: MIT
// Draws star lists with few stars and compares the pole with the truth.
#include "bench/recognition/fewstars.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <random>
#include <vector>

#include "astrometry/catalogue.h"
#include "astrometry/places.h"
#include "bench/recognition/statistics.h"
#include "recognition/recognise.h"

using astrometry::Vector3;
using recognition::DetectedStar;
using recognition::PixelPlace;
using recognition::Recognition;

namespace
{
constexpr double skyDate = 1795204800.0;
constexpr int frameWidth = 1280, frameHeight = 960;
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
        const double corner = 0.5 * std::hypot(frameWidth, frameHeight);
        const double factor = 1.0 + drawnOut * (x * x + y * y) / (corner * corner);
        return PixelPlace{x * factor + 0.5 * (frameWidth - 1),
                          y * factor + 0.5 * (frameHeight - 1)};
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
        if (at && at->x > 4.0 && at->y > 4.0 && at->x < frameWidth - 5 && at->y < frameHeight - 5)
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

FewStarsTally tallyFewStars(const FewStarsCase &which, int frames)
{
    const astrometry::CatalogueView catalogue = astrometry::catalogue();
    const auto places = astrometry::apparentPlaces(catalogue.begin(), catalogue.end(), skyDate);
    std::mt19937_64 random(21);
    std::uniform_int_distribution<int> number(which.least, which.most);
    FewStarsTally tally;
    std::vector<double> errors;
    while (tally.frames < frames && tally.lost < frames) {
        const Camera camera(random, which.distortion);
        const std::vector<Seen> seen = starsIn(camera, places);
        const auto count = std::size_t(number(random));
        if (seen.size() < count)
            continue;
        recognition::RecognitionOptions options;
        options.utcSeconds = skyDate;
        const Recognition found =
            recognition::recognise(measured(seen, count, random), frameWidth, frameHeight, options);
        if (found.status != recognition::RecognitionStatus::Recognised) {
            ++tally.lost;
            continue;
        }
        const PixelPlace pole = camera.pole();
        const double dx = found.pole.x - pole.x, dy = found.pole.y - pole.y;
        errors.push_back(std::hypot(dx, dy) * scale);
        tally.inside += squaredSigmas(dx, dy, found.poleCovariance) <= twoSigmaEllipse;
        ++tally.frames;
    }
    tally.rms = rms(errors);
    return tally;
}
