// SPDX-License-Identifier: MIT
// Apparent places of the stars in a field, sorted for matching.
#include "recognition/fieldstars.h"

#include "astrometry/catalogue.h"
#include "recognition/pose.h"

#include <algorithm>
#include <cmath>

namespace recognition
{
namespace
{
using astrometry::Vector3;

// A neighbour this much fainter moves a centroid by less than 3 % of their distance.
constexpr double faintNeighbour = 3.8; // magnitudes
} // namespace

std::vector<Vector3> placesAsSeen(const std::vector<std::size_t> &catalogueIndices,
                                  const RecognitionOptions &options)
{
    const astrometry::CatalogueView all = astrometry::catalogue();
    std::vector<astrometry::CatalogueStar> chosen;
    chosen.reserve(catalogueIndices.size());
    for (const std::size_t i : catalogueIndices)
        chosen.push_back(all.begin()[i]);
    const astrometry::CatalogueStar *first = chosen.data();
    const astrometry::CatalogueStar *last = first + chosen.size();
    if (!options.observer)
        return astrometry::apparentPlaces(first, last, options.utcSeconds);
    std::vector<Vector3> places =
        astrometry::apparentPlaces(first, last, options.observer->site, options.utcSeconds);
    const astrometry::Matrix3 horizon =
        astrometry::horizonFromCirs(options.observer->site, options.utcSeconds);
    for (Vector3 &place : places)
        place = apply(transposed(horizon),
                      astrometry::refracted(apply(horizon, place), options.observer->air));
    return places;
}

Vector3 asSeen(const Vector3 &cirs, const RecognitionOptions &options)
{
    if (!options.observer)
        return cirs;
    const astrometry::Matrix3 horizon =
        astrometry::horizonFromCirs(options.observer->site, options.utcSeconds);
    return apply(transposed(horizon),
                 astrometry::refracted(apply(horizon, cirs), options.observer->air));
}

FieldStars::FieldStars(const std::vector<std::size_t> &catalogueIndices,
                       const std::vector<Vector3> &places, const SkyMapping::Frame &plane,
                       double blendRadius)
{
    for (std::size_t i = 0; i < places.size(); ++i) {
        const double forward = dot(places[i], plane.forward);
        if (forward > minForward)
            stars.push_back(
                {catalogueIndices[i],
                 places[i],
                 {dot(places[i], plane.right) / forward, dot(places[i], plane.down) / forward},
                 astrometry::catalogue().begin()[catalogueIndices[i]].vMagnitude,
                 true});
    }
    std::sort(stars.begin(), stars.end(), [](const FieldStar &a, const FieldStar &b) {
        return a.plane.real() < b.plane.real();
    });
    markBlends(blendRadius);
}

void FieldStars::markBlends(double blendRadius)
{
    for (std::size_t i = 0; i < stars.size(); ++i)
        for (std::size_t k = i + 1; k < stars.size(); ++k) {
            if (stars[k].plane.real() - stars[i].plane.real() > blendRadius)
                break;
            if (std::abs(stars[k].plane - stars[i].plane) > blendRadius)
                continue;
            const double fainter = stars[k].magnitude - stars[i].magnitude;
            stars[i].lone = stars[i].lone && fainter > faintNeighbour;
            stars[k].lone = stars[k].lone && -fainter > faintNeighbour;
        }
}

std::size_t FieldStars::nearest(std::complex<double> plane, double radius) const
{
    const auto first = std::lower_bound(
        stars.begin(), stars.end(), plane.real() - radius,
        [](const FieldStar &star, double real) { return star.plane.real() < real; });
    std::size_t best = stars.size();
    double least = radius * radius;
    for (auto star = first; star != stars.end(); ++star) {
        if (star->plane.real() > plane.real() + radius)
            break;
        const double distance = std::norm(star->plane - plane);
        if (distance <= least) {
            least = distance;
            best = static_cast<std::size_t>(star - stars.begin());
        }
    }
    return best;
}
} // namespace recognition
