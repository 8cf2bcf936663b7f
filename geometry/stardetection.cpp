// SPDX-License-Identifier: MIT
// Where, to sub-pixel accuracy, is the star near a given position of a camera frame?
#include "geometry/stardetection.h"

#include "core/saturate.h"

#include <QDebug>
#include <array>
#include <cmath>
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

namespace
{
constexpr int searchSide = 40;
constexpr int centroidSide = 20;
constexpr int medianAperture = 3;
constexpr int medianBorder = medianAperture / 2;

/// Minimum ratio of peak to mean for a centroid.
constexpr double minContrast = 2.5;

/// Fraction of the way from mean to peak below which light does not count.
constexpr double thresholdFraction = 0.3;

/// Storage for a window of up to three channels, so that no window needs the heap.
using Scratch =
    std::array<uchar, 3 * (searchSide + 2 * medianBorder) * (searchSide + 2 * medianBorder)>;

/// The square window of the given side centred on (x, y); false if it extends beyond the frame. The
/// top-left corner is truncated toward zero, so -0.5 is still inside.
bool windowAround(const cv::Mat &frame, double x, double y, int side, cv::Rect &window)
{
    if (frame.empty() || frame.dims > 2 || std::isnan(x) || std::isnan(y))
        return false;
    const int left = saturatingInt(x - side / 2.0);
    const int top = saturatingInt(y - side / 2.0);
    if (left < 0 || top < 0 || left > frame.cols - side || top > frame.rows - side)
        return false;
    window = cv::Rect(left, top, side, side);
    return true;
}

bool usableType(const cv::Mat &frame)
{
    return frame.type() == CV_8UC1 || frame.type() == CV_8UC3;
}

/// The window of the median-filtered frame. Only the window and the neighbours that its median
/// needs are filtered. At the frame's edge the filter repeats the edge pixels, as it would for the
/// whole frame.
cv::Mat filteredWindow(const cv::Mat &frame, const cv::Rect &window, Scratch &scratch)
{
    const cv::Rect wanted(window.x - medianBorder, window.y - medianBorder,
                          window.width + 2 * medianBorder, window.height + 2 * medianBorder);
    const cv::Rect source = wanted & cv::Rect(0, 0, frame.cols, frame.rows);
    cv::Mat filtered(source.size(), frame.type(), scratch.data());
    cv::medianBlur(frame(source), filtered, medianAperture);
    return filtered(window - source.tl());
}

cv::Mat greyWindow(const cv::Mat &window, Scratch &scratch)
{
    if (window.channels() == 1)
        return window;
    cv::Mat grey(window.size(), CV_8UC1, scratch.data());
    cv::cvtColor(window, grey, cv::COLOR_RGB2GRAY);
    return grey;
}
} // namespace

int GetGravityCenter(const cv::Mat *frame, double x, double y, double &resultX, double &resultY)
{
    resultX = x;
    resultY = y;
    if (!frame)
        return -1;
    cv::Rect window;
    if (!windowAround(*frame, x, y, centroidSide, window)) {
        qCritical("GetGravityCenter - Out of Whole FOV");
        return -1;
    }
    if (!usableType(*frame))
        return -1;

    Scratch filteredScratch;
    Scratch greyScratch;
    const cv::Mat grey = greyWindow(filteredWindow(*frame, window, filteredScratch), greyScratch);
    double peak = 0.0;
    cv::minMaxLoc(grey, nullptr, &peak);
    cv::Scalar mean;
    cv::Scalar deviation;
    cv::meanStdDev(grey, mean, deviation);
    if (peak / mean[0] < minContrast) {
        qWarning("GetGravityCenter - Too low SNR, Keep stay");
        return -1;
    }

    const double threshold = mean[0] + thresholdFraction * (peak - mean[0]);
    Scratch excessScratch;
    cv::Mat excess(grey.size(), CV_8UC1, excessScratch.data());
    cv::subtract(grey, cv::Scalar(threshold), excess);
    const cv::Moments moments = cv::moments(excess, false);
    resultX = moments.m10 / moments.m00 + window.x;
    resultY = moments.m01 / moments.m00 + window.y;
    return 0;
}

int GetPreciseStarPos(const cv::Mat *frame, double x, double y, double &resultX, double &resultY)
{
    resultX = x;
    resultY = y;
    if (!frame)
        return -1;
    cv::Rect window;
    if (!windowAround(*frame, x, y, searchSide, window)) {
        qCritical("GetPreciseStarPos - Out of Whole FOV");
        return -1;
    }
    if (!usableType(*frame))
        return -1;

    Scratch filteredScratch;
    Scratch greyScratch;
    const cv::Mat filtered = filteredWindow(*frame, window, filteredScratch);
    cv::Scalar mean;
    cv::Scalar deviation;
    cv::meanStdDev(filtered, mean, deviation);
    double peak = 0.0;
    cv::Point brightest;
    cv::minMaxLoc(greyWindow(filtered, greyScratch), nullptr, &peak, nullptr, &brightest);
    if (static_cast<float>(mean[0]) == 0.0f || peak == 0.0) {
        qCritical("GetPreciseStarPos - No Star in the ROI Area.");
        return -1;
    }

    const double candidateX = brightest.x + window.x;
    const double candidateY = brightest.y + window.y;
    const int status = GetGravityCenter(frame, candidateX, candidateY, resultX, resultY);
    // A peak of one count can vanish in the rounding of the centroid's threshold.
    if (status != 0 || !std::isfinite(resultX) || !std::isfinite(resultY)) {
        resultX = candidateX;
        resultY = candidateY;
    }
    return 0;
}
