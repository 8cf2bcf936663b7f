// SPDX-License-Identifier: MIT
// Who gets the frames that the capture loop fetches?
#pragma once

#include "core/relaxed.h"

#include <opencv2/core.hpp>

/// Gets every frame of the capture loop, on the capture thread.
class FrameConsumer
{
public:
    virtual ~FrameConsumer() = default;

    /// @param frame 8 bit, one or three channels (blue, green, red); its pixels are valid until the
    /// next call @param stopped the loop was asked to stop: what is queued is not to be refilled
    /// @return false if the frame could not be used; the loop then pauses before the next one
    virtual bool handle(const cv::Mat &frame, const Relaxed<bool> &stopped) = 0;
};
