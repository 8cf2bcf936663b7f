// SPDX-License-Identifier: MIT
// The pole and the other results, from the mapping.
#include "recognition/outcome.h"

#include <algorithm>
#include <cmath>

namespace recognition
{
namespace
{
using astrometry::Vector3;

double scaleOf(const SkyMapping &mapping, const Recognition &result)
{
    return mapping.scaleAt({(result.width - 1) / 2.0, (result.height - 1) / 2.0});
}

void measurePole(const Vector3 &pole, const RecognitionOptions &options, Recognition &result)
{
    const std::optional<PixelPlace> place = result.mapping.pixelOf(pole);
    if (!place)
        return;
    result.status = RecognitionStatus::Recognised;
    result.pole = *place;
    result.poleCovariance = result.mapping.covarianceAt(*place);
    result.poleSigmaArcseconds =
        result.mapping.scaleAt(*place) *
        std::sqrt(0.5 * (result.poleCovariance.xx + result.poleCovariance.yy));
    result.rollDegrees = rollOf(result.mapping, result.hemisphere, options.utcSeconds);
}
} // namespace

Recognition outcomeOf(const Refined &refined, const StarFrame &frame, Hemisphere hemisphere,
                      double logChance, std::size_t extracted, const RecognitionOptions &options)
{
    Recognition result;
    result.status = RecognitionStatus::NoMatch;
    result.extracted = extracted;
    result.hemisphere = hemisphere;
    result.utcSeconds = options.utcSeconds;
    result.observed = options.observer.has_value();
    result.width = frame.width;
    result.height = frame.height;
    result.mapping = refined.mapping;
    result.mirrored = refined.mapping.isMirrored();
    result.rms = refined.rms;
    result.chance = std::min(1.0, std::exp(logChance));
    result.matched = refined.matched;
    result.scale = scaleOf(result.mapping, result);
    measurePole({0.0, 0.0, hemisphere == Hemisphere::North ? 1.0 : -1.0}, options, result);
    return result;
}
} // namespace recognition
