// SPDX-License-Identifier: MIT
// Finds focal length and attitude from a triangle of stars.
#include "recognition/pose.h"

#include <cmath>

namespace recognition
{
namespace
{
using astrometry::Matrix3;
using astrometry::Vector3;

Vector3 ray(CentredPixel p, double focalLength)
{
    const double factor = 1.0 / std::sqrt(p.x * p.x + p.y * p.y + focalLength * focalLength);
    return {p.x * factor, p.y * factor, focalLength * factor};
}

Vector3 difference(const Vector3 &a, const Vector3 &b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

double chord(const Vector3 &a, const Vector3 &b)
{
    return length(difference(a, b));
}

Vector3 normalised(const Vector3 &v)
{
    return scaled(v, 1.0 / length(v));
}

// Axes that a triangle carries: towards its middle, along its longest side, and across.
Matrix3 axesOf(const std::array<Vector3, 3> &v)
{
    const Vector3 middle =
        normalised({v[0].x + v[1].x + v[2].x, v[0].y + v[1].y + v[2].y, v[0].z + v[1].z + v[2].z});
    const Vector3 along = difference(v[2], v[1]);
    const double part = dot(along, middle);
    const Vector3 level = normalised(difference(along, scaled(middle, part)));
    return {{middle, level, cross(middle, level)}};
}

bool agree(double measured, double wanted, double tolerance)
{
    return std::abs(measured - wanted) <= tolerance * wanted;
}
} // namespace

Vector3 Pose::skyOf(CentredPixel pixel) const
{
    return apply(skyFromCamera, ray(pixel, focalLength));
}

std::optional<CentredPixel> Pose::pixelOf(const Vector3 &sky) const
{
    const Vector3 camera = apply(cameraFromSky, sky);
    if (!(camera.z > minForward))
        return std::nullopt;
    const double factor = focalLength / camera.z;
    return CentredPixel{camera.x * factor, camera.y * factor};
}

std::optional<Pose> poseOf(const std::array<CentredPixel, 3> &pixels,
                           const std::array<Vector3, 3> &sky, double longest, double tolerance)
{
    const double dx = pixels[1].x - pixels[2].x;
    const double dy = pixels[1].y - pixels[2].y;
    double focalLength = std::sqrt(dx * dx + dy * dy) / longest;
    std::array<Vector3, 3> rays;
    // Three steps bring the longest side to its length within 1e-4 even 20 degrees off the centre.
    for (int i = 0; i < 3; ++i) {
        for (std::size_t k = 0; k < 3; ++k)
            rays[k] = ray(pixels[k], focalLength);
        const double correction = chord(rays[1], rays[2]) / longest;
        focalLength *= correction;
        if (std::abs(correction - 1.0) < 1e-4)
            break;
    }
    if (!agree(chord(rays[0], rays[2]), chord(sky[0], sky[2]), tolerance) ||
        !agree(chord(rays[0], rays[1]), chord(sky[0], sky[1]), tolerance))
        return std::nullopt;
    const Matrix3 cameraFromSky = product(transposed(axesOf(rays)), axesOf(sky));
    return Pose{cameraFromSky, transposed(cameraFromSky), focalLength};
}
} // namespace recognition
