// SPDX-License-Identifier: MIT
// Measures the scene without rendering it.
#include "virtualcamera/truth.h"

#include <cmath>

#include "virtualcamera/mount.h"
#include "virtualcamera/scene.h"

namespace virtualsky
{
namespace
{
std::optional<Point> starPlace(const PlaceInPicture &where, const SkyState &state,
                               TemplateStar which, double utcSeconds)
{
    const CatalogueStar &star = templateStar(isSouth(state), which);
    return where.ofCirs(apparentPlaces(&star, &star + 1, siteOf(state), utcSeconds).front());
}

// The axis' displacement on the sky, split along the pole's vertical and across it, with the total
// angle kept. These are not the bolts' angles: with both bolts one degree off at latitude 40,
// altitude is 15" more than the bolt, and azimuth over the latitude's cosine 53" less.
void measureErrors(const SkyState &state, Truth &result)
{
    const Vector3 pole = poleDirection(state);
    const Vector3 axis = axisDirection(state);
    const double angle = angleBetween(pole, axis);
    const double northward = isSouth(state) ? -1.0 : 1.0;
    // The horizon's north point tilted up by the pole's altitude: the way up along the vertical.
    const Vector3 up = {0.0, -northward * pole.z, std::abs(pole.y)};
    const double alongUp = dot(axis, up);
    const double alongEast = axis.x;
    const double across = std::hypot(alongUp, alongEast);
    result.poleError = angle / arcsecond;
    result.altitudeError = across > 0.0 ? result.poleError * alongUp / across : 0.0;
    result.azimuthError = across > 0.0 ? result.poleError * alongEast / across : 0.0;
}
} // namespace

Truth truth(const SkyState &state, double utcSeconds)
{
    const PlaceInPicture where(state, utcSeconds);
    const Vector3 poleInCirs = {0.0, 0.0, isSouth(state) ? -1.0 : 1.0};
    Truth result = {};
    result.axis = where.ofHorizon(axisDirection(state));
    result.pole = where.ofHorizon(poleDirection(state));
    result.refractedPole = where.ofCirs(poleInCirs);
    result.starA = starPlace(where, state, TemplateStar::A, utcSeconds);
    result.starB = starPlace(where, state, TemplateStar::B, utcSeconds);
    result.starD = starPlace(where, state, TemplateStar::D, utcSeconds);
    measureErrors(state, result);
    return result;
}
} // namespace virtualsky
