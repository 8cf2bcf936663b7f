// SPDX-License-Identifier: MIT
// One star in a window: its own background and noise, its brightest place, its moments.
#include <algorithm>
#include <cmath>

#include "recognition/detection.h"
#include "recognition/extraction.h"
#include "recognition/frameaccess.h"
#include "recognition/measuredstars.h"
#include "recognition/starmoments.h"

namespace recognition
{
namespace
{
constexpr int minRadius = 2, widestWindow = 64; // pixels
constexpr int margin = 6; // pixels about the place that the star's light may reach into
constexpr double minSnr = 5.0;
constexpr double usualSigma = 1.2;     // pixels, to begin with
constexpr double minNoise = 0.2886751; // rounding to whole values

struct Level {
    float background, noise;
};

float medianOf(std::vector<float> &values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

// Median and median deviation of the whole window: a star fills little of it.
Level levelOf(const cv::Mat1f &values, int channels)
{
    std::vector<float> sorted(values.begin(), values.end());
    const float background = medianOf(sorted);
    for (float &value : sorted)
        value = std::abs(value - background);
    const double least = minNoise / std::sqrt(double(channels));
    return {background, std::max(1.4826f * medianOf(sorted), float(least))};
}

// The brightest 3 x 3 pixels within the radius, less their own brightest one: a hot pixel has
// nothing beside it.
cv::Point brightestPlace(const cv::Mat1f &values, double x, double y, int radius)
{
    cv::Point best(-1, -1);
    double most = 0.0;
    for (int j = 1; j + 1 < values.rows; ++j)
        for (int i = 1; i + 1 < values.cols; ++i) {
            if (std::hypot(i - x, j - y) > radius)
                continue;
            double sum = 0.0, top = 0.0;
            for (int row = j - 1; row <= j + 1; ++row)
                for (int column = i - 1; column <= i + 1; ++column) {
                    sum += double(values(row, column));
                    top = std::max(top, double(values(row, column)));
                }
            if (sum - top > most) {
                most = sum - top;
                best = {i, j};
            }
        }
    return best;
}
} // namespace

std::optional<DetectedStar> measureStar(const cv::Mat &frame, double x, double y, int radius)
{
    if (checkFrame(frame) != ExtractionStatus::Ok || radius < minRadius || radius > widestWindow)
        return std::nullopt;
    Window window = readWindow(frame, x, y, radius + margin);
    if (window.values.empty())
        return std::nullopt;
    const Level level = levelOf(window.values, frame.channels());
    window.values -= level.background;
    replaceHotPixels(window.values, level.noise);
    const double inX = x - window.left, inY = y - window.top;
    const cv::Point start = brightestPlace(window.values, inX, inY, radius);
    if (start.x < 0)
        return std::nullopt;
    const std::optional<Moments> moments =
        measureMoments(window.values, start.x, start.y,
                       {usualSigma, false, 0.5 * radius + 1.0, 0.5 * radius + 2.0});
    if (!moments)
        return std::nullopt;
    const double snr = moments->flux / (fluxNoise(*moments) * double(level.noise));
    const double fwhm = fwhmOf(moments->variance);
    const double edge = std::max(1.5, 0.8 * fwhm);
    const bool inside = moments->x >= edge && moments->y >= edge &&
                        moments->x <= window.values.cols - 1 - edge &&
                        moments->y <= window.values.rows - 1 - edge;
    if (!inside || !(snr >= minSnr) || !(fwhm >= minFwhm))
        return std::nullopt;
    return DetectedStar{moments->x + window.left,
                        moments->y + window.top,
                        moments->flux,
                        snr,
                        fwhm,
                        isSaturated(window.values, double(window.brightest), fullScale(frame),
                                    double(level.noise))};
}
} // namespace recognition
