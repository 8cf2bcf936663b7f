// SPDX-License-Identifier: MIT
// Which frame is everything measured on?
#pragma once

#include "virtualcamera/skystate.h"
#include "virtualcamera/truth.h"

#include <opencv2/core.hpp>

/// A northern sky at half a second and a gain of 50, with noise, standing still.
struct SkyFrame {
    SkyFrame();

    virtualsky::SkyState sky;
    virtualsky::Truth truth; ///< where the stars lie in `grey`
    cv::Mat grey;            ///< 960 x 1280, one channel
};

/// Made at the first call.
const SkyFrame &skyFrame();
