// SPDX-License-Identifier: MIT
// How does a picture of any size and scale become one of the program's size and scale?
#pragma once

#include <opencv2/core.hpp>

namespace pictures
{
inline constexpr double programScale = 30.45; ///< arcseconds a pixel, of the star templates
inline constexpr double maxEnlargement = 4.0; ///< of both sides

/// From a picture's pixels to those of the frame that is made of it.
struct Fit {
    cv::Rect region;     ///< of the picture that is used, around its centre
    double factor = 1.0; ///< frame pixels a picture pixel; below 1 pixels are averaged
};

/// @param picture size in pixels
/// @param frame size in pixels
/// @param scale arcseconds a pixel of the picture, which is resampled to programScale but enlarged
/// at most maxEnlargement times; 0 = unknown: pixels are binned by whole numbers only, so that
/// the picture comes nearest to the frame's size
Fit planFit(cv::Size picture, cv::Size frame, double scale);

/// The region, resampled. Averages of 8-bit pixels are 16-bit, 256 times the values, so that what
/// averaging gains is kept.
/// @param grey 8 or 16 bit, one channel
/// @param spread before pixels are averaged, their light is blurred over the width of one output
/// pixel: a star narrower than that keeps its place, which would be rounded to whole pixels
cv::Mat resampled(const cv::Mat &grey, const Fit &fit, bool spread = false);

/// The picture in the middle of a frame, cropped, or surrounded by the level of its own sky.
/// @param grey 8 bit, one channel
cv::Mat centred(const cv::Mat &grey, cv::Size frame);
} // namespace pictures
