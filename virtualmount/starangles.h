// SPDX-License-Identifier: MIT
// How far from the pole do the star angles built into the program lead?
#pragma once

#include "virtualcamera/skystate.h"

#include <QDate>
#include <optional>

struct StarCatalogue;

namespace virtualmount
{
/// Angle between the true pole of date and the pole that these angles give from stars A and B;
/// arcseconds. The stars are at their apparent positions for the site, without refraction, and the
/// triangle is in the tangent plane at the true pole. Empty for angles that form no triangle.
/// @param angles of the site's hemisphere
/// @param utcSeconds UTC of the sky, seconds since 1970
std::optional<double> anglesError(const StarCatalogue &angles, const virtualsky::SkyState &state,
                                  double utcSeconds);

struct AnglesError {
    int year;          ///< of the angles
    double arcseconds; ///< as of anglesError
};
/// The error of the built-in angles that the program uses on a given day.
/// @param today by the computer's clock: the program does not know the virtual sky's date
std::optional<AnglesError> builtInAnglesError(const QDate &today, const virtualsky::SkyState &state,
                                              double utcSeconds);
} // namespace virtualmount
