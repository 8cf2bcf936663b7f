// SPDX-License-Identifier: MIT
// Counts the template's rings that hold a star.
#include "geometry/templaterings.h"

#include "geometry/axiscentre.h"
#include "geometry/starcatalogue.h"

#include <QRectF>
#include <algorithm>
#include <iterator>

namespace
{
#include "geometry/templaterings.inc"

/// The widest ring that still tells a star that is beside it from one within, pixels.
constexpr double widestRing = 9.0;
/// What a click beside the star and an angle in whole degrees may move a star out of its ring.
constexpr double ringSlack = 1.0;
/// Stars nearer to the edge are not searched for.
constexpr double frameEdge = 10.0;
/// Fewer rings or stars tell nothing.
constexpr int leastRings = 6;
constexpr int leastStars = 4;

QPointF turnedAbout(QPointF point, QPointF centre, double degrees)
{
    double x = 0.0, y = 0.0;
    RotatePointByDegrees(degrees, point.x(), point.y(), centre.x(), centre.y(), x, y);
    return {x, y};
}

/// What all rings span, mask pixels.
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
    return fit.rings >= leastRings && fit.stars >= leastStars &&
           2 * fit.held < std::min(fit.rings, fit.stars);
}
