// SPDX-License-Identifier: MIT
// Which parts of a picture show nothing: borders, corners and bars without light or noise?
#pragma once

#include <opencv2/core.hpp>

namespace recognition
{
struct FlatAreas {
    bool isWhole = false;    ///< the whole picture has one value; nothing was set
    double blankShare = 0.0; ///< part of the picture's pixels that were set
};

/// Sets the pixels of flat areas to `blankValue`, however wide a border is. Nothing is done where
/// most of what lies between the stars is flat, as in a noise-free sky, or most of the picture is
/// saturated.
/// @param saturated value above which a flat area is
FlatAreas blankFlatAreas(cv::Mat1f &image, float saturated);
} // namespace recognition
