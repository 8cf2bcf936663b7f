// SPDX-License-Identifier: MIT
// A picture with its stars ringed and named and the pole marked.
#pragma once

#include <opencv2/core.hpp>

#include "recognise/report.h"

/// Brightened so that its stars show; 8 bit, blue green red, as large as the picture. Matched stars
/// have green rings and the brighter of them names, others grey ones; the pole has a red cross, or
/// an arrow at the edge that points to it. What was not recognised has grey rings alone.
/// @param pixels 8 or 16 bit, 1 or 3 channels
cv::Mat drawnPicture(const cv::Mat &pixels, const PictureReport &report);
