// SPDX-License-Identifier: MIT
// What is wrong with a frame in which the sky is not recognised, and where is a pole outside it?
#pragma once

#include "assistant/status.h"
#include "recognition/extraction.h"

#include <optional>
#include <vector>

namespace assistant
{
/// So many stars without the pole's among them are another part of the sky, not too few.
inline constexpr std::size_t plentyOfStars = 12;

/// How many of a frame's stars are no noise: in a frame without stars, as behind a cloud, a dozen
/// peaks of the noise reach a signal-to-noise ratio of five.
std::size_t solidStars(const std::vector<recognition::DetectedStar> &stars);

/// A frame that was not recognised.
struct LostSky {
    recognition::ExtractionStatus status = recognition::ExtractionStatus::Ok;
    std::size_t stars = 0;  ///< that are no noise
    double fwhm = 0.0;      ///< pixels
    bool hadSky = false;    ///< earlier frames were recognised
    bool isFirst = false;   ///< one of the first frames of a connection
    bool searching = false; ///< the exposure is being adjusted
};

Advice adviceOf(const LostSky &frame);

/// "The pole is so many degrees outside, that way"; nothing for a pole inside the frame.
/// @param scale arcseconds a pixel at the frame's centre
std::optional<Advice> adviceOnPole(recognition::PixelPlace pole, int width, int height,
                                   double scale);

/// What to do about the RA axis.
Advice adviceOnAxis(const AxisProgress &axis);

/// Puts the most important first: what is first stays, and what else is wrong comes before the
/// hints that may last all night, since a window has room for two.
void orderAdvice(std::vector<Advice> &advice);

/// What to do about the bolts.
/// @param goal arcseconds
Advice adviceOnBolts(const ErrorFigures &error, double goal);
} // namespace assistant
