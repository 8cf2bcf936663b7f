// SPDX-License-Identifier: MIT
// How are frames of every accepted kind read: whole, binned, or a window of them?
#pragma once

#include <opencv2/core.hpp>

#include "recognition/extraction.h"

namespace recognition
{
inline constexpr int minSide = 32;          ///< pixels
inline constexpr double maxPixels = 24.5e6; ///< 24 megapixels as makers count them

/// Ok, BadFrame or TooLarge.
ExtractionStatus checkFrame(const cv::Mat &frame);

/// 255 or 65535.
double fullScale(const cv::Mat &frame);

/// Mean of the channels and of `bin` x `bin` pixels; what is left over at the right and the bottom
/// is dropped. CV_32F.
cv::Mat1f binnedFrame(const cv::Mat &frame, int bin);

/// A part of the frame: value (0, 0) is the frame's pixel (left, top).
struct Window {
    cv::Mat1f values; ///< mean of the channels
    int left = 0, top = 0;
    float brightest = 0.0f; ///< of any single channel
};

/// The pixels within `radius` of a place, cut off at the frame's edge; empty if it is outside.
Window readWindow(const cv::Mat &frame, double x, double y, int radius);
} // namespace recognition
