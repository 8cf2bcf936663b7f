// SPDX-License-Identifier: MIT
// Which shape on the sky has a triangle of pixels, for a range of scales?
//
// A pinhole camera stretches triangles that are off its centre, more so in a wider field. So the
// shape depends on the scale: the scales are cut into ranges within which it does not change much.
#pragma once

#include "recognition/patterns.h"
#include "recognition/pose.h"

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

namespace recognition
{
/// How much a ratio of sides may change within a range of scales.
inline constexpr double shapeChange = 0.002;

struct ScaleRange {
    double least, greatest; ///< radians a pixel
};

/// @param farthest of the triangle's corners from the frame's centre, pixels
std::vector<ScaleRange> scaleRanges(double farthest, double minScale, double maxScale);

/// A triangle of the frame, its stars in the order of the sides opposite them, longest
/// first.
struct FrameTriangle {
    std::array<std::size_t, 3> stars;
    std::array<CentredPixel, 3> pixels;
    Shape shape;    ///< on the sky, in the middle of the range
    double longest; ///< chord of the unit sphere, in the middle of the range
    double scale;   ///< radians a pixel, the middle of the range
    bool positive;  ///< the triple product, if the frame is not mirrored
};

/// Nothing for shapes that no pattern has.
std::optional<FrameTriangle> triangleAt(const std::array<std::size_t, 3> &stars,
                                        const std::array<CentredPixel, 3> &pixels,
                                        const ScaleRange &range);
} // namespace recognition
