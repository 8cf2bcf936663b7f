// SPDX-License-Identifier: MIT
// Grey, then the program's scale and size, then 8 bits.
#include "framesources/preparation.h"

#include <algorithm>
#include <opencv2/imgproc.hpp>

#include "pictures/fitting.h"
#include "pictures/grey.h"
#include "pictures/stretch.h"
#include "virtualcamera/frame.h"

namespace framesources
{
namespace
{
const cv::Size programSize(virtualsky::sensorWidth, virtualsky::sensorHeight);
} // namespace

// By 1 2 1, both ways.
cv::Mat softened(const cv::Mat &grey)
{
    const cv::Matx13f kernel(0.25f, 0.5f, 0.25f);
    cv::Mat out;
    cv::sepFilter2D(grey, out, -1, kernel, kernel);
    return out;
}

bool needsSoftening(double fwhm, cv::Size frame, double scale)
{
    constexpr double narrowest = 1.5; // pixels: hardly any light beside the pixel of the centre
    const double factor = pictures::planFit(frame, programSize, scale).factor;
    return fwhm * std::min(1.0, factor) < narrowest;
}

cv::Mat prepared(const NativeFrame &frame, const Lens &lens)
{
    const pictures::Fit fit = pictures::planFit(frame.pixels.size(), programSize, lens.scale);
    cv::Mat out =
        pictures::resampled(pictures::greyOf(frame.pixels, frame.mosaic), fit, lens.soften);
    if (lens.soften)
        out = softened(out);
    if (out.depth() == CV_16U)
        out = pictures::stretched(out);
    if (!lens.mirrored)
        return pictures::centred(out, programSize);
    cv::Mat upright; // `out` may be the camera's own frame
    cv::flip(out, upright, 1);
    return pictures::centred(upright, programSize);
}
} // namespace framesources
