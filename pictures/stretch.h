// SPDX-License-Identifier: MIT
// Which 8-bit values show the faint stars of a 16-bit picture, and do not lose the bright ones?
#pragma once

#include <opencv2/core.hpp>

namespace pictures
{
/// The sky's place in the 8-bit range, and how far one sigma of its noise reaches there.
inline constexpr double skyLevel = 24.0, sigmaLevels = 2.5;

struct Levels {
    double sky = 0.0;   ///< median
    double sigma = 0.0; ///< of the noise: the median minus the 15.87th percentile; may be 0
    double most = 0.0;  ///< the brightest pixel
};
/// @param grey 8 or 16 bit, one channel, not empty
Levels levelsOf(const cv::Mat &grey);

/// Median of an 8- or 16-bit picture of one channel.
double medianOf(const cv::Mat &grey);

/// The 8-bit value of a 16-bit one: linear near the sky's level, where one sigma is sigmaLevels,
/// and by an inverse hyperbolic sine above, so that the brightest pixel becomes 255. Never falls
/// with the value.
unsigned char stretchedValue(double value, const Levels &levels);

/// The whole picture by stretchedValue. A picture of one value is that value, divided by 256.
/// @param grey 16 bit, one channel
cv::Mat stretched(const cv::Mat &grey);
} // namespace pictures
