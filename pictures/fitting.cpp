// SPDX-License-Identifier: MIT
// Binning, regions, resampling.
#include "pictures/fitting.h"

#include <algorithm>
#include <cmath>
#include <opencv2/imgproc.hpp>

#include "pictures/stretch.h"

namespace pictures
{
namespace
{
// The part of `side` pixels that a frame of `frame` pixels shows.
int usedPart(int side, int frame, double factor)
{
    const int part = std::min(side, int(std::ceil(frame / factor)));
    return part - (side - part) % 2 * (part > 1 ? 1 : 0); // the same margin on both sides
}
} // namespace

Fit planFit(cv::Size picture, cv::Size frame, double scale)
{
    Fit fit;
    if (scale > 0.0) {
        fit.factor = std::min(scale / programScale, maxEnlargement);
    } else {
        const double times =
            std::min(double(picture.width) / frame.width, double(picture.height) / frame.height);
        fit.factor = 1.0 / std::max(1.0, std::floor(times + 0.5));
    }
    const cv::Size used(usedPart(picture.width, frame.width, fit.factor),
                        usedPart(picture.height, frame.height, fit.factor));
    fit.region = cv::Rect((picture.width - used.width) / 2, (picture.height - used.height) / 2,
                          used.width, used.height);
    return fit;
}

cv::Mat resampled(const cv::Mat &grey, const Fit &fit, bool spread)
{
    const cv::Mat region = grey(fit.region);
    if (fit.factor == 1.0)
        return region;
    // A side keeps at least one pixel.
    const double least = 1.0 / std::min(region.cols, region.rows);
    const double factor = std::max(fit.factor, least);
    cv::Mat wide, out;
    if (factor > 1.0) {
        cv::resize(region, out, cv::Size(), factor, factor, cv::INTER_CUBIC);
        return out;
    }
    if (region.depth() == CV_8U)
        region.convertTo(wide, CV_16U, 256.0);
    else
        wide = region;
    const int side = 2 * int(0.5 / factor) + 1; // pixels, the odd number nearest to 1 / factor
    if (spread && side > 1) {
        cv::Mat blurred; // `wide` may be the camera's own frame
        cv::blur(wide, blurred, {side, side}, {-1, -1}, cv::BORDER_REPLICATE);
        wide = blurred;
    }
    cv::resize(wide, out, cv::Size(), factor, factor, cv::INTER_AREA);
    return out;
}

cv::Mat centred(const cv::Mat &grey, cv::Size frame)
{
    if (grey.size() == frame)
        return grey;
    cv::Mat out(frame, CV_8UC1, cv::Scalar(medianOf(grey)));
    const cv::Size shared(std::min(frame.width, grey.cols), std::min(frame.height, grey.rows));
    const auto middle = [shared](cv::Size size) {
        return cv::Rect((size.width - shared.width) / 2, (size.height - shared.height) / 2,
                        shared.width, shared.height);
    };
    grey(middle(grey.size())).copyTo(out(middle(frame)));
    return out;
}
} // namespace pictures
