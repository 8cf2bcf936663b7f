// SPDX-License-Identifier: MIT
// The gnomonic projection of the lens.
#include "virtualcamera/optics.h"

namespace virtualsky
{
namespace
{
// Focal length in pixels.
const double focalLength = 1.0 / std::tan(pixelScale * arcsecond);
constexpr double minForward = 0.1736; // cos 80 degrees
} // namespace

std::optional<Point> project(const Vector3 &camera)
{
    if (!(camera.z > minForward))
        return std::nullopt;
    const double factor = focalLength / camera.z;
    return Point{centreX + camera.x * factor, centreY + camera.y * factor};
}

Vector3 unproject(const Point &pixel)
{
    const Vector3 v = {pixel.x - centreX, pixel.y - centreY, focalLength};
    return scaled(v, 1.0 / length(v));
}
} // namespace virtualsky
