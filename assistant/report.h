// SPDX-License-Identifier: MIT
// What was achieved, and what does the error that remains do to a long exposure?
#pragma once

#include "assistant/status.h"
#include "astrometry/places.h"

#include <optional>
#include <string>

namespace assistant
{
/// What an axis off the pole does to a star on the celestial equator, where it is worst: at most so
/// much in an hour.
struct Drift {
    double declination; ///< arcseconds an hour
    double rotation;    ///< of the field about the guide star, arcseconds an hour
};

/// Axis and pole differ by a small angle e, so the mount turns with an error of e times the Earth's
/// rate about an axis at right angles to both. Of it, the part across a star's direction moves the
/// star in declination, the part along it turns the field. On the equator each is e times the rate
/// at its greatest. Reference: R. N. Hook, J. Br. Astron. Assoc. 99 (1989) 19.
Drift driftOf(double totalArcseconds);

struct Report {
    double utcSeconds = 0.0; ///< of the end
    std::optional<astrometry::Site> site;
    recognition::PoleTarget target = recognition::PoleTarget::True;
    ErrorFigures before, after;
    double seconds = 0.0; ///< from connecting to the end
};

/// Lines "quantity,value,sigma,unit" with decimal points, in English so that programs can read
/// them; without a site altitude and azimuth are left out.
std::string csvOf(const Report &report);
} // namespace assistant
