// SPDX-License-Identifier: MIT
// Apparent places, a gnomonic projection, Gaussians and noise.
#include "bench/recognition/paintedsky.h"

#include "astrometry/catalogue.h"
#include "astrometry/places.h"

#include <cmath>

namespace
{
using astrometry::Vector3;

constexpr double skyLevel = 20.0, noiseSigma = 3.0;

/// The picture's axes as directions on the sky: x to the right, y down, z forward.
struct View {
    Vector3 right, down, forward;
    double focal; // pixels

    cv::Point2d pixelOf(const Vector3 &star, const PaintedSky &picture) const
    {
        const double z = astrometry::dot(star, forward);
        return {0.5 * (picture.width - 1) + focal * astrometry::dot(star, right) / z,
                0.5 * (picture.height - 1) + focal * astrometry::dot(star, down) / z};
    }
};

View viewOf(const PaintedSky &picture)
{
    const double degree = astrometry::degree;
    const double sign = picture.south ? -1.0 : 1.0;
    const double toPole = picture.direction * degree, turn = picture.roll * degree;
    const Vector3 forward =
        astrometry::direction(toPole, sign * (90.0 - picture.offCentre) * degree);
    const Vector3 east = {-std::sin(toPole), std::cos(toPole), 0.0};
    const Vector3 north = astrometry::cross(forward, east);
    const auto mix = [](const Vector3 &a, double p, const Vector3 &b, double q) {
        return Vector3{a.x * p + b.x * q, a.y * p + b.y * q, a.z * p + b.z * q};
    };
    // Seen from inside the sphere, east is left of north.
    const double mirror = picture.mirrored ? 1.0 : -1.0;
    return {mix(east, mirror * std::cos(turn), north, mirror * std::sin(turn)),
            mix(east, std::sin(turn), north, -std::cos(turn)), forward,
            1.0 / std::tan(picture.scale * astrometry::arcsecond)};
}

void addStar(cv::Mat1f &light, cv::Point2d place, double flux, double sigma)
{
    const int radius = int(std::ceil(5.0 * sigma));
    const int middleX = int(std::lround(place.x)), middleY = int(std::lround(place.y));
    const auto share = [sigma](double offset) {
        const double k = 1.0 / (sigma * std::sqrt(2.0));
        return 0.5 * (std::erf((offset + 0.5) * k) - std::erf((offset - 0.5) * k));
    };
    for (int y = std::max(0, middleY - radius); y <= std::min(light.rows - 1, middleY + radius);
         ++y)
        for (int x = std::max(0, middleX - radius); x <= std::min(light.cols - 1, middleX + radius);
             ++x)
            light(y, x) += float(flux * share(x - place.x) * share(y - place.y));
}
} // namespace

cv::Mat paintSky(const PaintedSky &picture, cv::Point2d *pole)
{
    const View view = viewOf(picture);
    cv::Mat1f light(picture.height, picture.width);
    cv::RNG(picture.seed).fill(light, cv::RNG::NORMAL, skyLevel, noiseSigma);
    const astrometry::CatalogueView all = astrometry::catalogue();
    const std::vector<Vector3> places =
        astrometry::apparentPlaces(all.begin(), all.end(), picture.utcSeconds);
    const double sigma = picture.fwhm / 2.3548200450309493;
    const double limit = 5.0 * noiseSigma * 2.0 * sigma * std::sqrt(3.141592653589793);
    const double halfDiagonal = std::hypot(picture.width, picture.height) / 2.0 + 20.0;
    const double least = std::cos(std::atan(halfDiagonal / view.focal));
    for (std::size_t i = 0; i < places.size(); ++i) {
        if (astrometry::dot(places[i], view.forward) < least)
            continue;
        const double flux =
            limit * std::pow(10.0, 0.4 * (picture.faintest - all.begin()[i].vMagnitude));
        addStar(light, view.pixelOf(places[i], picture), flux, sigma);
    }
    if (pole)
        *pole = view.pixelOf({0.0, 0.0, picture.south ? -1.0 : 1.0}, picture);
    cv::Mat out;
    light.convertTo(out, CV_8U);
    return out;
}
