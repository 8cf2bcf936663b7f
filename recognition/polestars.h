// SPDX-License-Identifier: MIT
// Which catalogue stars are near a direction of one hemisphere?
//
// Directions are unit vectors of the ICRS, as from the solar system's barycentre: patterns are
// compared here, where apparent places differ by a rotation and by less than 4 arcsec in 10
// degrees.
#pragma once

#include "astrometry/vector3.h"
#include "recognition/hemisphere.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace recognition
{
/// How far from the pole the catalogue reaches, radians.
inline constexpr double catalogueRadius = 12.5 * astrometry::degree;

/// The stars of one hemisphere, brightest first. Never changes once built.
class PoleStars
{
public:
    explicit PoleStars(Hemisphere hemisphere);

    std::size_t size() const { return stars.size(); }
    /// Index into astrometry::catalogue().
    std::size_t catalogueIndex(std::size_t star) const { return stars[star].catalogue; }
    double magnitude(std::size_t star) const { return stars[star].magnitude; }

    /// Places at a date by proper motion, in the order of brightness.
    std::vector<astrometry::Vector3> placesAt(double utcSeconds) const;

    /// Calls visit(star) for all stars that may be within `radius` (radians, up to 0.3) of a
    /// direction, and for some others nearby. Dates between 1900 and 2200.
    template <typename Visitor>
    void visitNear(const astrometry::Vector3 &direction, double radius, Visitor visit) const;

private:
    struct Star {
        astrometry::Vector3 place;  // J2000.0
        astrometry::Vector3 motion; // radians a Julian year
        std::size_t catalogue;
        double magnitude;
    };
    static constexpr int cellsAcross = 64;
    static constexpr double reach = 0.22;     // the catalogue's edge: sin 12.5 degrees = 0.2164
    static constexpr double motionPad = 1e-4; // 20 arcsec: what a star moves in 20 to 200 years
    static int cellOf(double coordinate);
    void fillCells();

    double sign; // of z: +1 north
    std::vector<Star> stars;
    std::vector<std::uint16_t> cellStars; // star indices, cell by cell
    std::vector<std::uint16_t> cellStart; // cellsAcross^2 + 1
};

inline int PoleStars::cellOf(double coordinate)
{
    const double cell = (coordinate + reach) * (cellsAcross / (2.0 * reach));
    return cell <= 0.0 ? 0 : cell >= cellsAcross ? cellsAcross - 1 : static_cast<int>(cell);
}

template <typename Visitor>
void PoleStars::visitNear(const astrometry::Vector3 &direction, double radius, Visitor visit) const
{
    const double pad = radius + motionPad;
    const bool outside = direction.z * sign <= 0.0 || direction.x < -reach - pad ||
                         direction.x > reach + pad || direction.y < -reach - pad ||
                         direction.y > reach + pad;
    if (outside)
        return;
    const int left = cellOf(direction.x - pad);
    const int right = cellOf(direction.x + pad);
    const int bottom = cellOf(direction.y + pad);
    for (int row = cellOf(direction.y - pad); row <= bottom; ++row) {
        const std::size_t start = static_cast<std::size_t>(row) * std::size_t(cellsAcross);
        const std::size_t first = start + std::size_t(left);
        const std::size_t last = start + std::size_t(right) + 1;
        for (std::size_t i = cellStart[first]; i < cellStart[last]; ++i)
            visit(static_cast<std::size_t>(cellStars[i]));
    }
}
} // namespace recognition
