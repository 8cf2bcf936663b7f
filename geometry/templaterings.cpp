// SPDX-License-Identifier: MIT
// Counts the template's rings that contain a star.
#include "geometry/templaterings.h"

#include "geometry/axiscentre.h"
#include "geometry/starcatalogue.h"

#include <QRectF>
#include <algorithm>
#include <iterator>

namespace
{
#include "geometry/templaterings.inc"

/// Maximum radius used for a ring, pixels: a larger one would accept stars beside the ring.
constexpr double widestRing = 9.0;
/// Tolerance for a click slightly off the star and for an angle in whole degrees, pixels.
constexpr double ringSlack = 1.0;
/// Rings whose centre is closer than this to the frame's edge are skipped, pixels.
constexpr double frameEdge = 10.0;
/// With fewer rings or stars no conclusion is drawn.
constexpr int minRings = 6;
constexpr int minStars = 4;

QPointF turnedAbout(QPointF point, QPointF centre, double degrees)
{
    double x = 0.0, y = 0.0;
    RotatePointByDegrees(degrees, point.x(), point.y(), centre.x(), centre.y(), x, y);
    return {x, y};
}

/// The bounding rectangle of all rings, mask pixels.
QRectF extent(const std::vector<TemplateRing> &rings)
{
    QRectF all;
    for (const TemplateRing &ring : rings)
        all |= QRectF(ring.x - ring.radius, ring.y - ring.radius, 2 * ring.radius, 2 * ring.radius);
    return all;
}
} // namespace

std::vector<TemplateRing> templateRings(bool south)
{
    return south ? std::vector<TemplateRing>(std::begin(southRings), std::end(southRings))
                 : std::vector<TemplateRing>(std::begin(northRings), std::end(northRings));
}

TemplateFit fitTemplate(const TemplatePlace &place, const StarCatalogue &catalogue,
                        const std::vector<FieldStar> &stars, QSize frame)
{
    const std::vector<TemplateRing> rings = templateRings(place.south);
    const QPointF maskB(catalogue.starBX, catalogue.starBY);
    const QRectF inside =
        QRectF(QPointF(0, 0), frame).adjusted(frameEdge, frameEdge, -frameEdge, -frameEdge);
    TemplateFit fit;
    for (const TemplateRing &ring : rings) {
        const QPointF centre =
            turnedAbout({ring.x, ring.y}, maskB, place.angle) - maskB + place.starB;
        if (!inside.contains(centre))
            continue;
        ++fit.rings;
        if (isStarNear(stars, centre, std::min(ring.radius, widestRing) + ringSlack))
            ++fit.held;
    }
    const QRectF mask = extent(rings);
    for (const FieldStar &star : stars)
        if (mask.contains(turnedAbout(star.place - place.starB + maskB, maskB, -place.angle)))
            ++fit.stars;
    return fit;
}

bool isMisfit(const TemplateFit &fit)
{
    return fit.rings >= minRings && fit.stars >= minStars &&
           2 * fit.held < std::min(fit.rings, fit.stars);
}
