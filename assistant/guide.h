// SPDX-License-Identifier: MIT
// How do the frames of a session become stages, advice and figures?
#pragma once

#include "assistant/settings.h"
#include "assistant/status.h"

#include <opencv2/core.hpp>

namespace assistant
{
/// What the guide is fed: one frame, or the news that there is none.
struct Observation {
    cv::Mat frame;              ///< 8 or 16 bit, 1 or 3 channels; empty: no frame came
    double utcSeconds = 0.0;    ///< middle of the exposure by the computer's clock
    double steadySeconds = 0.0; ///< the same by a clock that nobody sets
    double exposureMicroseconds = 0.0;
};

/// The three stages for one camera. Not for two threads at a time; no thread, no clock and no file
/// of its own, so the same frames give the same answers.
class Guide;
} // namespace assistant
