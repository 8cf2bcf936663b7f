// SPDX-License-Identifier: MIT
// Where in the picture are the axis, the pole and the template stars really?
#pragma once

#include <optional>

#include "virtualcamera/optics.h"
#include "virtualcamera/skystate.h"

namespace virtualsky
{
/// Pixels: integer coordinates are pixel centres, x right, y down, of the full sensor. A place is
/// absent if it is 80 degrees or more from the picture's centre. Errors in arcseconds.
struct Truth {
    std::optional<Point> axis; ///< the RA axis; never refracted
    /// The true pole of date as geometry has it: what the axis has to meet. Not refracted.
    std::optional<Point> pole;
    /// The pole lifted by refraction: what the stars seem to turn about. `pole` if refraction is
    /// off.
    std::optional<Point> refractedPole;
    /// Stars of the site's hemisphere as they show, refraction included if it is on.
    std::optional<Point> starA, starB, starD;
    double poleError;     ///< angle between axis and true pole, 0 or more
    double altitudeError; ///< the axis above the pole, positive up
    double azimuthError;  ///< the axis east of the pole, on the sky (not about the vertical)
};

/// @param utcSeconds UTC since 1970; the state's own date is not looked at
Truth truth(const SkyState &state, double utcSeconds);
} // namespace virtualsky
