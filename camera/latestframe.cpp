// SPDX-License-Identifier: MIT
// Keeps two frame buffers and swaps them.
#include "camera/latestframe.h"

#include "core/locker.h"

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

LatestFrame::LatestFrame()
    : fetching(std::make_unique<FrameBuffer>()),
      latest(std::make_unique<FrameBuffer>()),
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
