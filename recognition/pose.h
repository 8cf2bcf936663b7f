// SPDX-License-Identifier: MIT
// Where does a camera without distortion see a star, if a triangle of three is what it seems?
//
// Centred pixels: x right, y down, from the frame's centre; of a mirrored frame x is negated, so
// that (x, y, forward) is right-handed as the sky is.
#pragma once

#include "astrometry/vector3.h"

#include <array>
#include <optional>

namespace recognition
{
/// The cosine of 80 degrees: directions as far as that from the frame's centre have no place in it.
inline constexpr double minForward = 0.1736;

struct CentredPixel {
    double x, y;
};

/// A pinhole camera's place among the stars.
struct Pose {
    astrometry::Matrix3 cameraFromSky; ///< rows: right, down and forward in the sky's frame
    astrometry::Matrix3 skyFromCamera; ///< its transpose
    double focalLength;                ///< pixels

    /// A unit vector in the frame of the directions that the pose was made from: the celestial
    /// intermediate frame of date, where they are PoleStars' places.
    astrometry::Vector3 skyOf(CentredPixel pixel) const;
    /// Nothing for directions 80 degrees or more from the frame's centre.
    std::optional<CentredPixel> pixelOf(const astrometry::Vector3 &sky) const;
};

/// The pose from a triangle of pixels and the directions that they are assumed to show.
/// @param longest chord of the unit sphere between the stars 1 and 2, the triangle's longest side
/// @param tolerance greatest relative difference between the triangles' sides
/// @return nothing if the triangles differ by more, seen through any pinhole camera
std::optional<Pose> poseOf(const std::array<CentredPixel, 3> &pixels,
                           const std::array<astrometry::Vector3, 3> &sky, double longest,
                           double tolerance);
} // namespace recognition
