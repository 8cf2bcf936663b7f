// SPDX-License-Identifier: MIT
// The catalogue's stars painted at any scale, for cameras unlike the virtual one.
#pragma once

#include <opencv2/core.hpp>

struct PaintedSky {
    int width = 1280, height = 960; ///< pixels
    double scale = 30.45;           ///< arcseconds a pixel at the centre
    bool south = false;
    double utcSeconds = 1.79e9;
    double offCentre = 0.0; ///< degrees from the pole to the picture's centre
    double direction = 0.0; ///< degrees, of the pole as seen from the centre
    double roll = 0.0;      ///< degrees
    bool mirrored = false;
    double fwhm = 2.5;      ///< pixels
    double faintest = 11.0; ///< magnitude that is 5 sigma above the noise
    unsigned seed = 1;
};

/// 8 bit, one channel: background 20, noise 3, gnomonic projection.
/// @param pole the true pole, pixels, if not null
cv::Mat paintSky(const PaintedSky &sky, cv::Point2d *pole = nullptr);
