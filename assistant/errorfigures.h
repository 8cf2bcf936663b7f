// SPDX-License-Identifier: MIT
// How far is the axis off the pole in one frame, and where is the pole that is aligned on?
#pragma once

#include "assistant/settings.h"
#include "assistant/status.h"

#include <optional>

namespace assistant
{
/// Nearer to the Earth's pole than this, degrees, azimuth has no meaning.
inline constexpr double minPolarDistance = 1.0;

/// The air by the settings.
astrometry::RefractionConstants airOf(const Settings &settings);

/// What the stars' places are refracted for; nothing without a site, or with one of the other
/// hemisphere.
std::optional<recognition::Observer> observerOf(const Settings &settings,
                                                recognition::Hemisphere hemisphere);

/// Whether a frame that was recognised by windows about the expected stars shows the sky: such
/// windows catch some noise where there are no stars, and a cloud is not to pass for the sky.
bool isTrustworthy(const recognition::Recognition &followed);

/// The pole that is aligned on. Without an observer it is the one that the stars turn about.
struct PolePlace {
    recognition::PixelPlace place;
    recognition::Covariance covariance; ///< pixels squared
};
std::optional<PolePlace> poleOf(const recognition::Recognition &frame, const Settings &settings);

/// The axis against the pole in one frame, with the two parts of its uncertainty kept apart: that
/// of the axis stays the same from frame to frame, that of the frame does not.
struct FrameError {
    /// Arcseconds. With a site, the angle on the sky, split along the pole's vertical (x, upwards)
    /// and across it (y, eastwards); else two directions that are fixed to the Earth.
    double x = 0.0, y = 0.0;
    recognition::Covariance axis;  ///< of x and y by the axis, arcseconds squared
    recognition::Covariance frame; ///< by the frame's mapping
    bool hasSite = false;
    double poleAltitude = 0.0; ///< with a site: of the pole that is aligned on, radians
};

/// @param axis where the axis lies in the camera's picture
/// @return nothing unless frame and axis were found
std::optional<FrameError> frameErrorOf(const recognition::Recognition &frame,
                                       const recognition::Axis &axis, const Settings &settings);

/// What is shown: with a site the angles that the bolts turn. Altitude is the axis' altitude minus
/// the pole's; azimuth the difference of their azimuths, about the vertical. Their standard errors
/// are those of the axis' direction, carried over exactly to first order.
ErrorFigures figuresOf(const FrameError &error, const std::optional<astrometry::Site> &site);
} // namespace assistant
