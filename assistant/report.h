// SPDX-License-Identifier: MIT
// What was achieved, and what does the error that remains do to a long exposure?
#pragma once

#include "assistant/settings.h"
#include "assistant/status.h"
#include "astrometry/places.h"

#include <optional>
#include <string>

namespace assistant
{
/// What an axis off the pole does to a guided exposure: at most so much in an hour.
struct Drift {
    double declination; ///< of the star, arcseconds an hour
    double rotation;    ///< of the field about the guide star, arcseconds of angle an hour
};

/// Axis and pole differ by a small angle e, so the mount turns with an error of e times the Earth's
/// rate about an axis at right angles to both. Of it, the part across a star's direction moves the
/// star in declination: e times the rate at its greatest, at any declination. While a guider holds
/// the star, what remains is a turn about the star: the part of the error towards it, over the
/// cosine of its declination. On the equator both are the same number; they are greatest six hours
/// of hour angle apart. Reference: R. N. Hook, J. Br. Astron. Assoc. 99 (1989) 19.
/// @param declination of the guide star, degrees, between -90 and 90
Drift driftOf(double totalArcseconds, double declination = 0.0);

/// The declination, north or south, for which the report gives the rotation too, degrees.
inline constexpr double highDeclination = 60.0;

Aim aimOf(const Settings &settings, recognition::Hemisphere hemisphere);

struct Report {
    double utcSeconds = 0.0; ///< of the end
    std::optional<astrometry::Site> site;
    Aim aim;
    /// Both against the same pole, for the same site and air. Before: at the first figure since the
    /// beginning, whatever happened to axis and settings since.
    ErrorFigures before, after;
    double seconds = 0.0; ///< from the first frame to the end, by a clock that nobody sets
};

/// Lines "quantity,value,sigma,unit" with decimal points, in English so that programs can read
/// them; without a site altitude and azimuth are left out.
std::string csvOf(const Report &report);
} // namespace assistant
