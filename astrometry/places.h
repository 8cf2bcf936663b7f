// SPDX-License-Identifier: MIT
// Where is a star at a time, for the Earth's centre or for a site?
//
// Frames: CIRS is the celestial intermediate frame of date: z is the true pole of date, x the
// celestial intermediate origin on the true equator; horizon vectors are (east, north, up). Times
// are UTC seconds since 1970; UTC is used for UT1 (up to 0.9 s, 14 arcsec of turn about the pole),
// polar motion as zero (0.5 arcsec). Precession and nutation are IAU 2006/2000A.
// Reference: ERFA, after SOFA; IERS Conventions (2010), chapter 5.
#pragma once

#include <vector>

#include "astrometry/catalogue.h"
#include "astrometry/vector3.h"

namespace astrometry
{
struct Site {
    double latitude;  ///< degrees, north positive
    double longitude; ///< degrees, east positive
};

/// CIRS directions of stars as seen from a site: proper motion, parallax, light bending,
/// aberration (annual and diurnal), precession and nutation.
std::vector<Vector3> apparentPlaces(const CatalogueStar *first, const CatalogueStar *last,
                                    const Site &site, double utcSeconds);

/// The same as seen from the Earth's centre: without the diurnal aberration (up to 0.3 arcsec).
std::vector<Vector3> apparentPlaces(const CatalogueStar *first, const CatalogueStar *last,
                                    double utcSeconds);

/// Right ascension of the celestial intermediate origin on the true equator and equinox of date,
/// the equation of the origins, radians: right ascension from the equinox is that in CIRS minus
/// this.
double equationOfOrigins(double utcSeconds);

/// The Earth rotation angle, radians, 0 to 2 pi: how far CIRS is ahead of the Greenwich meridian.
double earthRotationAngle(double utcSeconds);

/// Turns CIRS vectors into horizon vectors, without refraction. Earth rotation angle and site
/// alone.
Matrix3 horizonFromCirs(const Site &site, double utcSeconds);
} // namespace astrometry
