// SPDX-License-Identifier: MIT
// Which pixel does a direction project to?
//
// Camera vectors are (right, down, forward). Pixels: x to the right, y downwards, integer
// coordinates are pixel centres, (0, 0) is the centre of the top-left pixel.
#pragma once

#include <optional>

#include "virtualcamera/frame.h"
#include "virtualcamera/vector3.h"

namespace virtualsky
{
inline constexpr double pixelScale = 30.45; ///< arcseconds per pixel at the picture's centre
inline constexpr double centreX = (sensorWidth - 1) / 2.0;
inline constexpr double centreY = (sensorHeight - 1) / 2.0;

struct Point {
    double x, y;
};

/// Gnomonic projection about the picture's centre; empty for directions 80 degrees or more away.
std::optional<Point> project(const Vector3 &camera);

/// The camera vector of a pixel.
Vector3 unproject(const Point &pixel);
} // namespace virtualsky
