// SPDX-License-Identifier: MIT
// How far is the axis off the pole in one frame, and where is the pole that is aligned on?
#pragma once

#include "assistant/settings.h"
#include "assistant/status.h"

#include <optional>

namespace assistant
{
/// Nearer to the Earth's pole than this, degrees, azimuth has no meaning.
inline constexpr double leastPolarDistance = 1.0;

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
    double x = 0.0, y = 0.0; ///< arcseconds: with a site altitude and azimuth on the sky, else two
                             ///< directions that are fixed to the Earth
    double axisX = 0.0, axisY = 0.0;   ///< standard errors by the axis
    double frameX = 0.0, frameY = 0.0; ///< standard errors by the frame's mapping
    bool hasSite = false;
};

/// @param axis where the axis lies in the camera's picture
/// @return nothing unless frame and axis were found
std::optional<FrameError> frameErrorOf(const recognition::Recognition &frame,
                                       const recognition::Axis &axis, const Settings &settings);

/// What is shown. Azimuth becomes the angle about the vertical: that on the sky over the cosine of
/// the pole's altitude, which is the site's latitude.
ErrorFigures figuresOf(const FrameError &error, const std::optional<astrometry::Site> &site);
} // namespace assistant
