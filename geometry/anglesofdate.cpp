// SPDX-License-Identifier: MIT
// The template stars' angles from their apparent places.
#include "geometry/anglesofdate.h"

#include "astrometry/catalogue.h"
#include "astrometry/places.h"
#include "geometry/starcatalogue.h"

#include <cmath>

namespace
{
/// In the plane that touches the sky at the pole, which is its origin.
struct TangentPoint {
    double x, y;
};

TangentPoint tangentPointOf(bool south, astrometry::TemplateStar which, double utcSeconds)
{
    const astrometry::CatalogueStar &star = astrometry::templateStar(south, which);
    const astrometry::Vector3 v = astrometry::apparentPlaces(&star, &star + 1, utcSeconds).front();
    return {v.x / v.z, v.y / v.z};
}

/// At `corner`, between `a` and `b`, degrees.
double angleAt(TangentPoint corner, TangentPoint a, TangentPoint b)
{
    const double ax = a.x - corner.x, ay = a.y - corner.y;
    const double bx = b.x - corner.x, by = b.y - corner.y;
    return std::atan2(std::abs(ax * by - ay * bx), ax * bx + ay * by) / astrometry::degree;
}
} // namespace

void takeAnglesOfDate(StarCatalogue &catalogue, bool south, double utcSeconds)
{
    const TangentPoint a = tangentPointOf(south, astrometry::TemplateStar::A, utcSeconds);
    const TangentPoint b = tangentPointOf(south, astrometry::TemplateStar::B, utcSeconds);
    const TangentPoint d = tangentPointOf(south, astrometry::TemplateStar::D, utcSeconds);
    const TangentPoint pole = {0.0, 0.0};
    catalogue.angleBAP = angleAt(a, b, pole);
    catalogue.angleABP = angleAt(b, a, pole);
    catalogue.angleDBP = angleAt(b, d, pole);
}
