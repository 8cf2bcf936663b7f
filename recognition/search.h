// SPDX-License-Identifier: MIT
// Which triangles of the frame's stars are tried, and against what?
#pragma once

#include "recognition/recognise.h"
#include "recognition/verification.h"

#include <optional>
#include <vector>

namespace recognition
{
struct SearchResult {
    Hemisphere hemisphere;
    Hypothesis hypothesis;
    Verification verification;
    double logChance; ///< natural logarithm of the bound: tries over odds
};

/// Tries the triangles of the brightest stars, then those of the brightest stars of parts of the
/// frame, until a pose is surer than `options.acceptedChance`.
std::optional<SearchResult> search(const FrameStars &frame, int width, int height,
                                   const RecognitionOptions &options);
} // namespace recognition
