// SPDX-License-Identifier: MIT
// Keeps two frame buffers and swaps them.
#include "camera/latestframe.h"

#include "core/locker.h"

#include <new>

namespace
{
cv::Mat matrixOver(FrameBuffer &buffer, const FrameFormat &format)
{
    if (format.width == 0 || format.height == 0)
        return cv::Mat();
    return cv::Mat(int(format.height), int(format.width), CV_8UC(int(format.channels)),
                   buffer.data());
}
} // namespace

/// A block of this size comes zeroed from the system; nothing writes to it before the first frame.
LatestFrame::Buffer LatestFrame::blackBuffer()
{
    auto *const memory = static_cast<FrameBuffer *>(std::calloc(1, sizeof(FrameBuffer)));
    if (!memory)
        throw std::bad_alloc();
    return Buffer(memory);
}

LatestFrame::LatestFrame()
    : fetching(blackBuffer()),
      latest(blackBuffer()),
      frame(matrixOver(*latest, {frameWidthDefault, frameHeightDefault, 8, 1}))
{
}

cv::Mat LatestFrame::fetched(const FrameFormat &format)
{
    return matrixOver(*fetching, format);
}

cv::Mat LatestFrame::acceptFetched(const FrameFormat &format)
{
    const Locker lock(mutex);
    fetching.swap(latest);
    frame = matrixOver(*latest, format);
    return frame;
}

cv::Mat LatestFrame::copy() const
{
    const Locker lock(mutex);
    return frame.clone();
}
