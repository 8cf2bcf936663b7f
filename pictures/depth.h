// SPDX-License-Identifier: MIT
// How do values of any type become 16 bits?
#pragma once

#include <opencv2/core.hpp>

namespace pictures
{
/// Stretches the values so that the least becomes 0 and the greatest 65535; what is within 16 bits
/// already stays. Values that are no numbers, or infinite, count as 0.
/// @param values of any depth, any number of channels
cv::Mat to16Bits(const cv::Mat &values);
} // namespace pictures
