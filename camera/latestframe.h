// SPDX-License-Identifier: MIT
// Which pixels has the latest whole frame?
#pragma once

#include "camera/frameformat.h"

#include <QMutex>
#include <memory>
#include <opencv2/core.hpp>

/// Two buffers and their lock: the camera fills one while the other holds the latest whole frame.
/// The two change places with every frame, and no pixel is copied.
class LatestFrame
{
public:
    /// A black frame of the default size: no star to be picked.
    LatestFrame();

    /// Where the next frame goes. The capture thread's alone.
    std::uint8_t *fetchBuffer() { return fetching->data(); }
    /// The fetched pixels as a matrix; empty without any. The capture thread's alone.
    /// @param format one that fits the buffer
    cv::Mat fetched(const FrameFormat &format);
    /// Makes the fetched pixels the latest frame, and returns a header over them, valid until the
    /// next call. The capture thread's alone. @param format a usable one
    cv::Mat acceptFetched(const FrameFormat &format);

    /// A copy of the latest whole frame that stays as it is. Any thread.
    cv::Mat copy() const;

private:
    mutable QMutex mutex; ///< guards `frame` and the exchange of the buffers
    std::unique_ptr<FrameBuffer> fetching;
    std::unique_ptr<FrameBuffer> latest;
    cv::Mat frame; ///< header over `latest`
};
