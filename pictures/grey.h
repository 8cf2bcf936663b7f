// SPDX-License-Identifier: MIT
// What is the grey picture of a colour picture or of a sensor with a Bayer pattern?
#pragma once

#include <opencv2/core.hpp>
#include <string>

namespace pictures
{
/// The mosaic of a Bayer sensor as grey: each pixel becomes a quarter red, half green, a quarter
/// blue of its surroundings, whatever the pattern's phase. Centres of stars stay where they are.
/// @param mosaic 8 or 16 bit, one channel
cv::Mat greyOfMosaic(const cv::Mat &mosaic);

/// What begins at an offset into a Bayer pattern, such as "GRBG" one column into "RGGB".
/// @param pattern from the top left, two rows of two letters
/// @return empty if it is no such pattern
std::string shiftedPattern(const std::string &pattern, int columns, int rows);

/// One channel of 8 or 16 bits; a grey picture is returned as it is.
/// @param picture 8 or 16 bit, one channel or three (blue green red)
/// @param mosaic whether one channel is that of a Bayer sensor
cv::Mat greyOf(const cv::Mat &picture, bool mosaic);
} // namespace pictures
