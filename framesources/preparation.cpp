// SPDX-License-Identifier: MIT
// Grey, then the program's scale and size, then 8 bits.
#include "framesources/preparation.h"

#include "pictures/fitting.h"
#include "pictures/grey.h"
#include "pictures/stretch.h"
#include "virtualcamera/frame.h"

namespace framesources
{
cv::Mat prepared(const NativeFrame &frame, const Lens &lens)
{
    const cv::Size size(virtualsky::sensorWidth, virtualsky::sensorHeight);
    const pictures::Fit fit = pictures::planFit(frame.pixels.size(), size, lens.scale);
    cv::Mat out = pictures::resampled(pictures::greyOf(frame.pixels, frame.mosaic), fit);
    if (out.depth() == CV_16U)
        out = pictures::stretched(out);
    cv::Mat upright = out;
    if (lens.mirrored)
        cv::flip(out, upright, 1);
    return pictures::centred(upright, size);
}
} // namespace framesources
