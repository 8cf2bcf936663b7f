// SPDX-License-Identifier: MIT
// The sky's level and noise from the histogram, and the curve through them.
#include "pictures/stretch.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

namespace pictures
{
namespace
{
constexpr double fullScale = 255.0;
constexpr double minSigma = 0.3; // of whole values without noise

template <typename Value> std::vector<std::uint32_t> counts(const cv::Mat &grey)
{
    std::vector<std::uint32_t> histogram(std::size_t(1) << (8 * sizeof(Value)));
    for (int y = 0; y < grey.rows; ++y) {
        const Value *const row = grey.ptr<Value>(y);
        for (int x = 0; x < grey.cols; ++x)
            ++histogram[row[x]];
    }
    return histogram;
}

std::vector<std::uint32_t> histogramOf(const cv::Mat &grey)
{
    return grey.depth() == CV_8U ? counts<std::uint8_t>(grey) : counts<std::uint16_t>(grey);
}

// The value below which `part` of all pixels lie; whole values are taken as evenly filled.
double quantile(const std::vector<std::uint32_t> &histogram, double total, double part)
{
    double below = 0.0;
    for (std::size_t value = 0; value < histogram.size(); ++value) {
        const double here = histogram[value];
        if (here > 0.0 && below + here >= part * total)
            return double(value) - 0.5 + (part * total - below) / here;
        below += here;
    }
    return double(histogram.size() - 1);
}

// The softening b of asinh(x / b) / asinh(top / b) * range for which the slope at 0 is `slope`.
double softening(double top, double range, double slope)
{
    double low = top * 1e-6, high = top * 1e6;
    for (int i = 0; i < 80; ++i) {
        const double middle = std::sqrt(low * high);
        const double found = range / (middle * std::asinh(top / middle));
        (found > slope ? low : high) = middle;
    }
    return high;
}

struct Curve {
    explicit Curve(const Levels &levels) : sky(levels.sky), top(levels.most - levels.sky)
    {
        const double sigma = std::max(levels.sigma, minSigma);
        slope = sigmaLevels / sigma;
        if (slope * top > fullScale - skyLevel)
            soft = softening(top, fullScale - skyLevel, slope);
    }

    double operator()(double value) const
    {
        const double above = value - sky;
        if (above <= 0.0 || soft <= 0.0)
            return std::clamp(skyLevel + slope * above, 0.0, fullScale);
        const double range = fullScale - skyLevel;
        return std::min(skyLevel + range * std::asinh(above / soft) / std::asinh(top / soft),
                        fullScale);
    }

    double sky, top, slope = 1.0, soft = 0.0; // soft 0 = linear throughout
};

unsigned char rounded(double value)
{
    return static_cast<unsigned char>(std::lround(value));
}
} // namespace

Levels levelsOf(const cv::Mat &grey)
{
    const std::vector<std::uint32_t> histogram = histogramOf(grey);
    const double total = double(grey.total());
    Levels levels;
    levels.sky = quantile(histogram, total, 0.5);
    levels.sigma = levels.sky - quantile(histogram, total, 0.1587);
    for (std::size_t value = histogram.size(); value-- > 0 && levels.most == 0.0;)
        if (histogram[value] > 0)
            levels.most = double(value);
    return levels;
}

double medianOf(const cv::Mat &grey)
{
    return std::round(quantile(histogramOf(grey), double(grey.total()), 0.5));
}

unsigned char stretchedValue(double value, const Levels &levels)
{
    return rounded(Curve(levels)(value));
}

cv::Mat stretched(const cv::Mat &grey)
{
    cv::Mat out(grey.size(), CV_8UC1);
    double least = 0.0, most = 0.0;
    cv::minMaxLoc(grey, &least, &most);
    if (least == most) {
        out.setTo(std::floor(least / 256.0));
        return out;
    }
    const Curve curve(levelsOf(grey));
    std::vector<unsigned char> table(std::size_t(most) + 1);
    for (std::size_t value = std::size_t(least); value < table.size(); ++value)
        table[value] = rounded(curve(double(value)));
    for (int y = 0; y < grey.rows; ++y) {
        const std::uint16_t *const from = grey.ptr<std::uint16_t>(y);
        unsigned char *const to = out.ptr(y);
        for (int x = 0; x < grey.cols; ++x)
            to[x] = table[from[x]];
    }
    return out;
}
} // namespace pictures
