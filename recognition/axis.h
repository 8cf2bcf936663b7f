// SPDX-License-Identifier: MIT
// About which point of the picture does the camera turn with the mount's RA axis?
//
// The sky's own turn is the Earth rotation angle (IERS Conventions 2010, chapter 5); the axis is
// the fixed point of the frames' mappings by weighted least squares; of frames that disagree the
// largest set that agrees counts (Fischler and Bolles 1981, CACM 24, 381, with every pair for
// random ones).
#pragma once

#include "recognition/recognise.h"

#include <cstddef>
#include <string>
#include <vector>

namespace recognition
{
/// Least turn from the first to the last of the frames' angles, degrees.
inline constexpr double minTurn = 15.0;

enum class AxisStatus {
    Found,
    TooFewFrames,    ///< fewer than two recognised frames
    DifferentFrames, ///< not of one camera: size, mirroring, hemisphere or scale differ
    TooLittleTurn,   ///< less than `minTurn` in all
    Bumped           ///< the frames do not agree on one axis, and no majority does
};

/// What the axis has in common with one of the frames that it was found by.
struct SharedError {
    double utcSeconds; ///< of the frame
    PixelPlace pole;   ///< of the frame
    /// Between the axis' place and the frame's mapping there, pixels squared: with the covariances
    /// of both it makes that of the axis' direction in this frame's sky.
    Covariance covariance;
};

struct Axis {
    AxisStatus status = AxisStatus::TooFewFrames;
    PixelPlace place = {0.0, 0.0}; ///< pixels; possibly outside the frame
    Covariance covariance;         ///< pixels squared
    double sigmaArcseconds = 0.0;  ///< root of the mean of the two variances, on the sky
    /// Of the frames' turns, degrees: greatest minus least.
    double totalTurn = 0.0;
    /// Of each frame against the first recognised one, degrees, -180 to 180, positive as a mount
    /// tracks (westwards); 0 for frames that were not recognised.
    std::vector<double> turns;
    /// Frames that do not turn about the axis of the others: tripod or bolts were moved.
    std::vector<std::size_t> bumped;
    /// Whether the frames could have contradicted each other: two alone never do.
    bool checked = false;
    double rms = 0.0; ///< arcseconds, by which the frames disagree, both axes
    /// Of the frames that count. For `mountError`; whoever moves `place` must clear it.
    std::vector<SharedError> shared;
};

/// The RA axis from frames between which it turned, either way, in any number of steps; the sky
/// moved meanwhile with the Earth. Each frame's `utcSeconds` must be right within a second or two
/// against the others. Frames that were not recognised are left out. Recognise with an observer
/// where refraction matters (below 30 degrees of latitude).
/// The axis is the pixel that shows, in every frame, the same direction fixed to the Earth.
Axis axisOfTurns(const std::vector<Recognition> &frames);

/// What the axis' place and a frame's mapping there have in common, pixels squared: nothing unless
/// the axis was found by that frame.
Covariance sharedError(const Axis &axis, const Recognition &frame);

/// A sentence about the outcome that a person can act on.
std::string reason(const Axis &axis);
} // namespace recognition
