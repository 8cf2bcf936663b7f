// SPDX-License-Identifier: MIT
// How far, and which way, is the mount's RA axis off the pole?
//
// Which of the two poles is best aligned on, and what an error does: Wallace and Tritton 1979,
// MNRAS 189, 115. Standard errors are propagated in the first order.
#pragma once

#include "astrometry/places.h"
#include "astrometry/refraction.h"
#include "recognition/axis.h"
#include "recognition/recognise.h"

#include <optional>

namespace recognition
{
enum class PoleTarget {
    True,     ///< the Earth's axis: best for long exposures anywhere in the sky
    Refracted ///< the point that the air lifts it to: where stars near the pole seem to turn about
};

struct MountErrorOptions {
    astrometry::Site site = {0.0, 0.0};
    /// Without air there is no refraction and both poles are one.
    std::optional<astrometry::RefractionConstants> air;
    PoleTarget target = PoleTarget::True;
};

struct Measured {
    double arcseconds = 0.0;
    double sigma = 0.0; ///< standard error, arcseconds
};

struct MountError {
    Measured total;    ///< the angle between axis and pole, 0 or more
    Measured altitude; ///< positive: the axis is above the pole, lower it
    Measured
        azimuth; ///< positive: the axis is east of the pole; on the sky, not about the vertical
    Covariance covariance;     ///< of altitude (xx) and azimuth (yy), arcseconds squared
    double poleAltitude = 0.0; ///< of the pole that is aligned on, radians above the horizon
};

/// @param frame one of those that gave the axis, or a later one of the same camera, with the
/// mount's bolts as they are now; its `utcSeconds` and the observer it was recognised with count
/// @param axis the axis in the camera's picture
/// @return nothing unless frame and axis were found and the site's latitude is on the frame's
/// hemisphere, within 90 degrees
std::optional<MountError> mountError(const Recognition &frame, const Axis &axis,
                                     const MountErrorOptions &options);
} // namespace recognition
