// SPDX-License-Identifier: MIT
// Which frame do all benchmarks use?
#pragma once

#include "virtualcamera/skystate.h"
#include "virtualcamera/truth.h"

#include <opencv2/core.hpp>

/// A northern sky at half a second and a gain of 50, with noise, without motion.
struct SkyFrame {
    SkyFrame();

    virtualsky::SkyState sky;
    virtualsky::Truth truth; ///< star positions in `grey`
    cv::Mat grey;            ///< 960 x 1280, one channel
};

/// Rendered on the first call.
const SkyFrame &skyFrame();
