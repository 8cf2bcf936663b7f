// SPDX-License-Identifier: MIT
// Sorts a hemisphere's stars by brightness and into cells.
#include "recognition/polestars.h"

#include "astrometry/catalogue.h"

#include <algorithm>
#include <cmath>

namespace recognition
{
namespace
{
using astrometry::CatalogueStar;
using astrometry::Vector3;

constexpr double secondsPerYear = 365.25 * 86400.0;
constexpr double j2000 = 946728000.0; // 2000-01-01T12:00:00, seconds since 1970

// Radians a year: the proper motion as a vector tangent to the sphere.
Vector3 motionOf(const CatalogueStar &star)
{
    constexpr double milliarcsecond = astrometry::arcsecond / 1000.0;
    const double ra = star.raDegrees * astrometry::degree;
    const double dec = star.decDegrees * astrometry::degree;
    const Vector3 east = {-std::sin(ra), std::cos(ra), 0.0};
    const Vector3 north = {-std::sin(dec) * std::cos(ra), -std::sin(dec) * std::sin(ra),
                           std::cos(dec)};
    const double e = star.pmRaCosDec * milliarcsecond;
    const double n = star.pmDec * milliarcsecond;
    return {e * east.x + n * north.x, e * east.y + n * north.y, e * east.z + n * north.z};
}
} // namespace

PoleStars::PoleStars(Hemisphere hemisphere) : sign(hemisphere == Hemisphere::North ? 1.0 : -1.0)
{
    std::size_t index = 0;
    for (const CatalogueStar &star : astrometry::catalogue()) {
        if (star.decDegrees * sign > 0.0)
            stars.push_back({astrometry::direction(star.raDegrees * astrometry::degree,
                                                   star.decDegrees * astrometry::degree),
                             motionOf(star), index, star.vMagnitude});
        ++index;
    }
    std::stable_sort(stars.begin(), stars.end(),
                     [](const Star &a, const Star &b) { return a.magnitude < b.magnitude; });
    fillCells();
}

void PoleStars::fillCells()
{
    const auto cell = [](const Star &star) {
        const int number = cellOf(star.place.y) * cellsAcross + cellOf(star.place.x);
        return static_cast<std::size_t>(number);
    };
    cellStart.assign(static_cast<std::size_t>(cellsAcross * cellsAcross) + 1, 0);
    for (const Star &star : stars)
        ++cellStart[cell(star) + 1];
    for (std::size_t i = 1; i < cellStart.size(); ++i)
        cellStart[i] = static_cast<std::uint16_t>(cellStart[i] + cellStart[i - 1]);
    std::vector<std::uint16_t> next = cellStart;
    cellStars.resize(stars.size());
    for (std::size_t i = 0; i < stars.size(); ++i)
        cellStars[next[cell(stars[i])]++] = static_cast<std::uint16_t>(i);
}

std::vector<Vector3> PoleStars::placesAt(double utcSeconds) const
{
    const double years = (utcSeconds - j2000) / secondsPerYear;
    std::vector<Vector3> places;
    places.reserve(stars.size());
    for (const Star &star : stars)
        places.push_back({star.place.x + years * star.motion.x,
                          star.place.y + years * star.motion.y,
                          star.place.z + years * star.motion.z});
    return places;
}
} // namespace recognition
