// SPDX-License-Identifier: MIT
// Which mapping, and which stars, follow from a verified pose?
#pragma once

#include "recognition/fieldstars.h"
#include "recognition/mapping.h"
#include "recognition/recognise.h"
#include "recognition/star.h"

#include <optional>
#include <utility>
#include <vector>

namespace recognition
{
/// A frame's stars and its measures.
struct StarFrame {
    const std::vector<DetectedStar> &stars; ///< places finite, brightest first
    int width, height;
};

/// A frame's star (index) and the catalogue star (index into astrometry::catalogue()) it is.
struct Correspondence {
    std::size_t detected, catalogue;
};

struct Refined {
    SkyMapping mapping;
    std::vector<MatchedStar> matched; ///< brightest first
    double rms = 0.0; ///< arcseconds, both axes, of the matched stars without a near neighbour
};

/// Fits the mapping to all stars that it comes to match, with as many terms as they support.
/// @param known at least three, the first three not on one line
/// @param field indices of the catalogue stars that the frame may show
std::optional<Refined> refine(const StarFrame &frame, bool mirrored,
                              const std::vector<Correspondence> &known,
                              const std::vector<std::size_t> &field,
                              const RecognitionOptions &options);

/// What is known beforehand of a star's centroid: its variance on one axis, pixels squared.
/// @param arcsecondsPerPixel for the catalogue's own error
double centroidVariance(const DetectedStar &star, double arcsecondsPerPixel);
} // namespace recognition
