// SPDX-License-Identifier: MIT
// How does a camera's frame become one of the program's?
#pragma once

#include <opencv2/core.hpp>

#include "framesources/nativecamera.h"

namespace framesources
{
/// What is known of the lens.
struct Lens {
    double scale = 0.0;    ///< arcseconds a pixel of the camera's frames; 0 = not to be changed
    bool mirrored = false; ///< the frames show the sky as in a mirror
    bool soften = false;   ///< its stars are single pixels, which look like faults of the sensor
};

/// Spreads every pixel over its neighbours: a lone pixel becomes a star 1.7 pixels wide, a quarter
/// as high.
cv::Mat softened(const cv::Mat &grey);

/// Whether stars look like faults of the sensor once a frame is resampled.
/// @param fwhm their full width at half maximum, pixels of the frame
/// @param frame its size, pixels
/// @param scale arcseconds a pixel of the frame; 0 = not to be changed
bool needsSoftening(double fwhm, cv::Size frame, double scale);

/// A grey frame of 1280 x 960 pixels and 8 bits. Frames of 16 bits, and averages, are stretched so
/// that faint stars stay visible; other frames of 8 bits keep their values.
/// @param frame not empty
cv::Mat prepared(const NativeFrame &frame, const Lens &lens);
} // namespace framesources
