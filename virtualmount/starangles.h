// SPDX-License-Identifier: MIT
// By how much do the star angles that are built into the program miss the pole?
#pragma once

#include "virtualcamera/skystate.h"

#include <QDate>
#include <optional>

struct StarCatalogue;

namespace virtualmount
{
/// The angle between the pole that the triangle of the stars A and B and the pole gives with these
/// angles, and the true pole of date; arcseconds. The stars stand where they appear from the site,
/// without refraction, and the triangle lies in the plane that touches the sky at the true pole.
/// Nothing for angles of which no triangle can be made.
/// \param angles of the site's hemisphere
/// \param utcSeconds UTC since 1970 of the sky
std::optional<double> anglesError(const StarCatalogue &angles, const virtualsky::SkyState &state,
                                  double utcSeconds);

struct AnglesError {
    int year;          ///< of the angles
    double arcseconds; ///< as of anglesError
};
/// The error of the built-in angles that the program takes on a day.
/// \param today by the computer's clock: the program does not know the date of the virtual sky
std::optional<AnglesError> builtInAnglesError(const QDate &today, const virtualsky::SkyState &state,
                                              double utcSeconds);
} // namespace virtualmount
