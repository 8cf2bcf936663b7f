// SPDX-License-Identifier: MIT
// Compares the program's built-in triangle with the virtual sky.
#include "virtualmount/starangles.h"

#include "geometry/polecomputation.h"
#include "geometry/starcatalogue.h"
#include "resources/resources.h"
#include "virtualcamera/mount.h"
#include "virtualcamera/scene.h"

#include <cmath>

namespace virtualmount
{
namespace
{
using virtualsky::SkyState;

struct PlanePoint {
    double x, y;
};

/// In the tangent plane at the pole; arcseconds, the pole at (0, 0).
PlanePoint starInPlane(const SkyState &state, virtualsky::TemplateStar which, double utcSeconds)
{
    const virtualsky::CatalogueStar &star =
        virtualsky::templateStar(virtualsky::isSouth(state), which);
    const virtualsky::Vector3 place =
        virtualsky::apparentPlaces(&star, &star + 1, virtualsky::siteOf(state), utcSeconds).front();
    const double scale = 1.0 / (std::abs(place.z) * virtualsky::arcsecond);
    return {place.x * scale, place.y * scale};
}
} // namespace

std::optional<double> anglesError(const StarCatalogue &angles, const SkyState &state,
                                  double utcSeconds)
{
    const PlanePoint a = starInPlane(state, virtualsky::TemplateStar::A, utcSeconds);
    const PlanePoint b = starInPlane(state, virtualsky::TemplateStar::B, utcSeconds);
    // Rotated so that A is the origin and B is on the x axis: stars in one column give no pole.
    const double side = std::hypot(b.x - a.x, b.y - a.y);
    const PlanePoint along = {(b.x - a.x) / side, (b.y - a.y) / side};
    const PlanePoint truePole = {-(a.x * along.x + a.y * along.y),
                                 -(a.y * along.x - a.x * along.y)};
    PlanePoint pole = {};
    const bool usable = angles.angleBAP > 0.0 && angles.angleABP > 0.0;
    if (!usable || CalcPoleCOOR(0.0, 0.0, angles.angleBAP, side, 0.0, angles.angleABP, truePole.x,
                                truePole.y, pole.x, pole.y) != 0)
        return std::nullopt;
    return std::hypot(pole.x - truePole.x, pole.y - truePole.y);
}

std::optional<AnglesError> builtInAnglesError(const QDate &today, const SkyState &state,
                                              double utcSeconds)
{
    initialiseResources();
    const int year = catalogueEpoch(today);
    const QString file = virtualsky::isSouth(state) ? QStringLiteral(":/starData/SStarPosData.ini")
                                                    : QStringLiteral(":/starData/NStarPosData.ini");
    const auto error = anglesError(readStarCatalogue(file, year), state, utcSeconds);
    return error ? std::optional(AnglesError{year, *error}) : std::nullopt;
}
} // namespace virtualmount
