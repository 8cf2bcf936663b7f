// SPDX-License-Identifier: MIT
// Splits the way from the axis to the pole along the vertical and the level in the picture.
#include "assistantwindow/boltlegs.h"

#include <cmath>

namespace assistantwindow
{
namespace
{
using astrometry::Vector3;
using recognition::PixelPlace;

constexpr double legStep = 60.0 * astrometry::arcsecond;

/// Where the axis' pixel goes by a step towards a direction of the sky: pixels.
std::optional<PixelPlace> moveTowards(const Vector3 &goal, const PixelPlace &from,
                                      const recognition::SkyMapping &mapping)
{
    const Vector3 here = mapping.skyOf(from);
    const double along = dot(goal, here);
    const Vector3 across = {goal.x - along * here.x, goal.y - along * here.y,
                            goal.z - along * here.z};
    const double size = length(across);
    if (!(size > 1e-9))
        return {};
    const Vector3 there = {here.x + across.x * legStep / size, here.y + across.y * legStep / size,
                           here.z + across.z * legStep / size};
    const auto pixel = mapping.pixelOf(scaled(there, 1.0 / length(there)));
    if (!pixel)
        return {};
    return PixelPlace{pixel->x - from.x, pixel->y - from.y};
}
} // namespace

QLineF shownLeg(const QLineF &leg)
{
    constexpr double least = 1.5, axis = 34.0;
    QLineF shown = leg;
    if (leg.length() < least)
        return {};
    if (leg.length() < axis)
        shown.setLength(axis);
    return shown;
}

std::optional<BoltLegs> boltLegs(const assistant::Status &status,
                                 const std::optional<astrometry::Site> &site)
{
    if (!site || !status.error || !status.error->altitude || !status.error->azimuth ||
        !status.axis.place || !status.pole || !status.sky)
        return {};
    const PixelPlace axis = *status.axis.place, pole = *status.pole;
    const astrometry::Matrix3 horizon = astrometry::horizonFromCirs(*site, status.utcSeconds);
    const auto east = moveTowards(horizon.rows[0], axis, status.sky->mapping);
    const auto up = moveTowards(horizon.rows[2], axis, status.sky->mapping);
    if (!east || !up)
        return {};
    const double determinant = up->x * east->y - up->y * east->x;
    if (!(std::abs(determinant) > 1e-12))
        return {};
    const double x = pole.x - axis.x, y = pole.y - axis.y;
    const double upward = (x * east->y - y * east->x) / determinant;
    return BoltLegs{axis, {axis.x + upward * up->x, axis.y + upward * up->y}, pole};
}
} // namespace assistantwindow
