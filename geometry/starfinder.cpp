// SPDX-License-Identifier: MIT
// Finds stars as groups of pixels that are brighter than the sky around them.
#include "geometry/starfinder.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

namespace
{
constexpr int smallestFrame = 64;
/// Side of the squares from which the sky level is estimated, pixels.
constexpr int skySquare = 16;
/// The level to which the sky is shifted, so that its darker half is not clipped, counts.
constexpr int skyLevel = 32;
/// Minimum brightness of a star above the sky: in standard deviations, and in counts.
constexpr double minDeviations = 5.0;
constexpr double minCounts = 3.0;
/// Area of a star in the filtered frame, pixels: more than a single pixel, less than a cloud.
constexpr int smallestStar = 2;
constexpr int largestStar = 1500;

cv::Mat greyOf(const cv::Mat &frame)
{
    if (frame.channels() == 1)
        return frame;
    cv::Mat grey;
    cv::cvtColor(frame, grey, cv::COLOR_BGR2GRAY);
    return grey;
}

/// The picture with the gradients of the sky removed and the sky at skyLevel.
cv::Mat flattened(const cv::Mat &grey)
{
    cv::Mat sky, flat;
    cv::resize(grey, sky, {std::max(grey.cols / skySquare, 2), std::max(grey.rows / skySquare, 2)},
               0, 0, cv::INTER_AREA);
    cv::medianBlur(sky, sky, 3);
    cv::resize(sky, sky, grey.size(), 0, 0, cv::INTER_LINEAR);
    cv::addWeighted(grey, 1.0, sky, -1.0, skyLevel, flat);
    return flat;
}

/// The median of a histogram.
int medianOf(const std::array<int, 256> &histogram, int total)
{
    int below = 0;
    for (int value = 0; value < 256; ++value) {
        below += histogram[std::size_t(value)];
        if (2 * below >= total)
            return value;
    }
    return 255;
}

/// The threshold above which a pixel belongs to a star, counts. The spread is computed from the
/// median absolute deviation, which stars do not affect.
double thresholdOf(const cv::Mat &flat)
{
    std::array<int, 256> counts{};
    for (int y = 0; y < flat.rows; ++y) {
        const uchar *const row = flat.ptr<uchar>(y);
        for (int x = 0; x < flat.cols; ++x)
            ++counts[row[x]];
    }
    const int total = flat.rows * flat.cols;
    const int middle = medianOf(counts, total);
    std::array<int, 256> distances{};
    for (int value = 0; value < 256; ++value)
        distances[std::size_t(std::abs(value - middle))] += counts[std::size_t(value)];
    const double deviation = 1.4826 * medianOf(distances, total);
    return middle + std::max(minDeviations * deviation, minCounts);
}
} // namespace

std::vector<FieldStar> findStars(const cv::Mat &frame)
{
    if (frame.dims > 2 || (frame.type() != CV_8UC1 && frame.type() != CV_8UC3) ||
        std::min(frame.rows, frame.cols) < smallestFrame)
        return {};
    cv::Mat filtered; // without hot pixels
    cv::medianBlur(greyOf(frame), filtered, 3);
    const cv::Mat flat = flattened(filtered);
    cv::Mat bright;
    cv::threshold(flat, bright, thresholdOf(flat), 255, cv::THRESH_BINARY);
    std::vector<cv::Point> pixels;
    cv::findNonZero(bright, pixels);
    // One mask for all areas: without it, each call would allocate one of the frame's size.
    cv::Mat mask = cv::Mat::zeros(bright.rows + 2, bright.cols + 2, CV_8UC1);
    std::vector<FieldStar> stars;
    for (const cv::Point &pixel : pixels) {
        if (bright.at<uchar>(pixel) == 0) // part of an area that is already counted
            continue;
        cv::Rect extent;
        const int area = cv::floodFill(bright, mask, pixel, cv::Scalar(0), &extent, {}, {}, 8);
        if (area < smallestStar || area > largestStar)
            continue;
        double peak = 0.0;
        cv::minMaxLoc(filtered(extent), nullptr, &peak);
        stars.push_back(
            {{extent.x + (extent.width - 1) / 2.0, extent.y + (extent.height - 1) / 2.0},
             int(peak)});
    }
    return stars;
}

bool isStarNear(const std::vector<FieldStar> &stars, QPointF place, double reach)
{
    return std::any_of(stars.begin(), stars.end(), [&](const FieldStar &star) {
        const QPointF way = star.place - place;
        return std::hypot(way.x(), way.y()) <= reach;
    });
}

std::optional<QPointF> brightestIn(const std::vector<FieldStar> &stars, const QRectF &area)
{
    const FieldStar *brightest = nullptr;
    for (const FieldStar &star : stars)
        if (star.place.x() >= area.left() && star.place.x() <= area.right() &&
            star.place.y() >= area.top() && star.place.y() <= area.bottom() &&
            (!brightest || star.peak > brightest->peak))
            brightest = &star;
    return brightest ? std::optional(brightest->place) : std::nullopt;
}
