// SPDX-License-Identifier: MIT
// What are the pixels of the latest complete frame?
#pragma once

#include "camera/frameformat.h"

#include <QMutex>
#include <cstdlib>
#include <memory>
#include <opencv2/core.hpp>

/// Two buffers and their lock: the camera fills one while the other holds the latest complete
/// frame. The buffers are swapped with every frame; no pixel is copied.
class LatestFrame
{
public:
    /// Starts with a black frame of the default size, in which no star can be picked.
    /// @throws std::bad_alloc
    LatestFrame();

    /// The buffer for the next frame. Capture thread only.
    std::uint8_t *fetchBuffer() { return fetching->data(); }
    /// The fetched pixels as a matrix; empty if the format has none. Capture thread only.
    /// @param format must fit the buffer
    cv::Mat fetched(const FrameFormat &format);
    /// Makes the fetched pixels the latest frame and returns a header over them, valid until the
    /// next call. Capture thread only.
    /// @param format must be usable
    cv::Mat acceptFetched(const FrameFormat &format);

    /// A deep copy of the latest complete frame. Any thread.
    cv::Mat copy() const;

private:
    struct Free {
        void operator()(FrameBuffer *buffer) const { std::free(buffer); }
    };
    using Buffer = std::unique_ptr<FrameBuffer, Free>;
    /// @throws std::bad_alloc
    static Buffer blackBuffer();

    mutable QMutex mutex; ///< guards `frame` and the swap of the buffers
    Buffer fetching, latest;
    cv::Mat frame; ///< header over `latest`
};
