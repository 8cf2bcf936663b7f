// SPDX-License-Identifier: MIT
// Where does a star stand for a site at a time?
//
// Frames: CIRS is the celestial intermediate frame of date (z = the true pole); horizon vectors are
// (east, north, up). Times are UTC seconds since 1970; UT1 is taken as UTC (up to 0.9 s, 14 arcsec
// of turn about the pole), polar motion as zero (0.5 arcsec).
#pragma once

#include <optional>
#include <vector>

#include "virtualcamera/catalogue.h"
#include "virtualcamera/vector3.h"

namespace virtualsky
{
struct Site {
    double latitude;  ///< degrees, north positive
    double longitude; ///< degrees, east positive
};

/// CIRS directions of stars as seen from a site: proper motion, parallax, light bending,
/// aberration (annual and diurnal), precession and nutation.
std::vector<Vector3> apparentPlaces(const CatalogueStar *first, const CatalogueStar *last,
                                    const Site &site, double utcSeconds);

/// Turns CIRS vectors into horizon vectors, without refraction. Earth rotation angle and site
/// alone.
Matrix3 horizonFromCirs(const Site &site, double utcSeconds);

/// The two constants of the refraction formula, radians: A tan z + B tan^3 z.
struct RefractionConstants {
    double a = 0.0;
    double b = 0.0;
};

/// For green light (0.55 micrometres).
/// @param pressure hectopascals  @param temperature degrees Celsius  @param humidity 0 to 1
RefractionConstants refractionConstants(double pressure, double temperature, double humidity);

/// Lifts a horizon vector towards the zenith. Below 3 degrees of altitude the formula is held at
/// its value there, so that nothing runs away at the horizon.
Vector3 refracted(const Vector3 &horizon, const RefractionConstants &constants);
} // namespace virtualsky
