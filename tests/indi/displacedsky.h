// SPDX-License-Identifier: MIT
// Where must INDI's simulated camera believe the stars so that it shows a misaligned mount's sky?
//
// The driver draws the field about the telescope's place with the north of J2000 to the right, as
// on a mount that is aligned on the pole of J2000. Its stars are therefore displaced: the driver's
// own projection then puts them where the mount with its bolts shows them. How far the RA axis is
// turned comes from the telescope's place alone.
#pragma once

#include <cmath>
#include <ctime>
#include <optional>
#include <vector>

#include "astrometry/catalogue.h"
#include "astrometry/places.h"
#include "virtualcamera/optics.h"
#include "virtualcamera/scene.h"
#include "virtualcamera/skystate.h"

namespace displacedsky
{
/// A place on the sky, ICRS, degrees.
struct SkyDirection {
    double raDegrees, decDegrees;
};

/// Right ascension from the equinox of date of an ICRS place, degrees: what a mount shows.
inline double raOfDate(const SkyDirection &place, double utcSeconds)
{
    astrometry::CatalogueStar star = {};
    star.raDegrees = place.raDegrees;
    star.decDegrees = place.decDegrees;
    const auto cirs = astrometry::apparentPlaces(&star, &star + 1, utcSeconds).front();
    return (std::atan2(cirs.y, cirs.x) - astrometry::equationOfOrigins(utcSeconds)) /
           astrometry::degree;
}

/// The driver's projection backwards: the place that it draws at a pixel.
/// @param centre of its field
inline SkyDirection drawnAt(const virtualsky::Point &pixel, const SkyDirection &centre)
{
    using namespace astrometry;
    const double ra = centre.raDegrees * degree, dec = centre.decDegrees * degree;
    const double scale = std::tan(virtualsky::pixelScale * arcsecond);
    const double north = (pixel.x - virtualsky::centreX) * scale;
    const double east = (virtualsky::centreY - pixel.y) * scale;
    // In the meridian of the centre: towards it on the equator, eastwards, towards the pole.
    const double outwards = std::cos(dec) - north * std::sin(dec);
    const double up = std::sin(dec) + north * std::cos(dec);
    return {(ra + std::atan2(east, outwards)) / degree,
            std::atan2(up, std::hypot(outwards, east)) / degree};
}

/// A star's light in the four pixels about its place, so that their centroid is the place.
inline void divide(const astrometry::CatalogueStar &star, const virtualsky::Point &pixel,
                   const SkyDirection &centre, std::vector<astrometry::CatalogueStar> &out)
{
    constexpr double minShare = 0.001;
    const double left = std::floor(pixel.x), top = std::floor(pixel.y);
    for (const double x : {left, left + 1.0})
        for (const double y : {top, top + 1.0}) {
            const double share = (1.0 - std::abs(pixel.x - x)) * (1.0 - std::abs(pixel.y - y));
            if (share < minShare)
                continue;
            const SkyDirection drawn = drawnAt({x, y}, centre);
            astrometry::CatalogueStar part = star;
            part.raDegrees = std::fmod(drawn.raDegrees + 720.0, 360.0);
            part.decDegrees = drawn.decDegrees;
            part.vMagnitude -= 2.5 * std::log10(share);
            out.push_back(part);
        }
}

/// A star's light on three by three pixels about its place: a Gaussian, 1.9 pixels wide at half its
/// height.
inline void spread(const astrometry::CatalogueStar &star,
                   std::vector<astrometry::CatalogueStar> &out)
{
    constexpr double sigma = 0.8; // pixels
    const double row = 1.0 + 2.0 * std::exp(-1.0 / (2.0 * sigma * sigma));
    for (const int x : {-1, 0, 1})
        for (const int y : {-1, 0, 1}) {
            const double share = std::exp(-(x * x + y * y) / (2.0 * sigma * sigma)) / (row * row);
            const SkyDirection drawn = drawnAt({virtualsky::centreX + x, virtualsky::centreY + y},
                                               {star.raDegrees, star.decDegrees});
            astrometry::CatalogueStar part = star;
            part.raDegrees = std::fmod(drawn.raDegrees + 720.0, 360.0);
            part.decDegrees = drawn.decDegrees;
            part.vMagnitude -= 2.5 * std::log10(share);
            out.push_back(part);
        }
}

/// All stars of the picture, as the driver is to draw them.
/// @param centre that the driver asks about; it belongs to the present time
/// @param homeRa right ascension of the telescope, degrees, where the sky's RA angle is 0
inline std::vector<astrometry::CatalogueStar> stars(virtualsky::SkyState sky,
                                                    const SkyDirection &centre, double homeRa)
{
    const double now = double(std::time(nullptr));
    sky.raAngle = homeRa - raOfDate(centre, now);
    const double skyTime = sky.date.value_or(now);
    const virtualsky::PlaceInPicture where(sky, skyTime);
    const auto all = astrometry::catalogue();
    const auto places =
        astrometry::apparentPlaces(all.begin(), all.end(), virtualsky::siteOf(sky), skyTime);
    std::vector<astrometry::CatalogueStar> out;
    for (std::size_t i = 0; i < places.size(); ++i) {
        if (const auto pixel = where.ofCirs(places[i]))
            divide(all.first[i], *pixel, centre, out);
    }
    return out;
}
} // namespace displacedsky
