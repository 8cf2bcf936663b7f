// SPDX-License-Identifier: MIT
// Which parts of a picture show nothing: borders, corners and bars without light or noise?
#pragma once

#include <opencv2/core.hpp>

namespace recognition
{
/// Sets the pixels of flat areas to `blankValue`. Nothing is done where most of the picture is
/// flat, as a noise-free sky is.
/// @return whether the whole picture has one value
bool blankFlatAreas(cv::Mat1f &image);
} // namespace recognition
