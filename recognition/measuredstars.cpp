// SPDX-License-Identifier: MIT
// Each candidate is measured in a window of the frame itself.
#include "recognition/measuredstars.h"

#include <algorithm>
#include <cmath>

#include "recognition/frameaccess.h"
#include "recognition/starmoments.h"

namespace recognition
{
namespace
{
constexpr double widestSigma = 16.0; // pixels
constexpr int windowMargin = 2;      // pixels
constexpr double windowSigmas = 4.0;
constexpr int largestRadius = 48;    // pixels
constexpr std::size_t brighter = 40; // stars that the frame's width is measured by
constexpr double fullScalePart = 0.98;
constexpr int plateauPixels = 5;       // an unsaturated top has four equal values at most
constexpr double plateauHeight = 20.0; // times the noise
constexpr double brightPeak = 12.0;    // times the smoothed noise: has a width of its own
constexpr double sureSnr = 10.0;       // shapes of fainter ones are too uncertain
constexpr std::size_t sureStars = 5;   // that give the frame's width
constexpr double faintestSigma = 2.2;  // pixels of the searched picture, without that width

// The brightest unsaturated stars; where there are hardly any, the faintest of all: the more a star
// is saturated, the wider it is.
std::vector<const MeasuredStar *> typical(const std::vector<MeasuredStar> &stars)
{
    std::vector<const MeasuredStar *> order;
    for (const MeasuredStar &found : stars)
        if (!found.star.saturated)
            order.push_back(&found);
    const bool clear = order.size() >= sureStars;
    if (!clear) {
        order.clear();
        for (const MeasuredStar &found : stars)
            order.push_back(&found);
    }
    std::sort(order.begin(), order.end(), [clear](const MeasuredStar *a, const MeasuredStar *b) {
        return clear ? a->star.snr > b->star.snr : a->star.snr < b->star.snr;
    });
    if (order.size() > brighter)
        order.resize(brighter);
    return order;
}

template <typename Value>
double medianOfTypical(const std::vector<MeasuredStar> &stars, const Value &value)
{
    std::vector<double> values;
    for (const MeasuredStar *found : typical(stars))
        values.push_back(value(*found));
    if (values.empty())
        return 0.0;
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

bool insideEdges(const DetectedStar &star, const cv::Mat &frame)
{
    const double margin = std::max(2.0, 0.8 * star.fwhm);
    return star.x >= margin && star.y >= margin && star.x <= frame.cols - 1 - margin &&
           star.y <= frame.rows - 1 - margin;
}

bool isWithin(const DetectedStar &star, double x, double y)
{
    const double dx = star.x - x, dy = star.y - y, reach = std::max(1.5, 0.7 * star.fwhm);
    return dx * dx + dy * dy < reach * reach;
}
} // namespace

bool isSaturated(const cv::Mat1f &values, double brightest, double scale, double noise)
{
    if (brightest >= fullScalePart * scale)
        return true;
    float top = values(0, 0);
    int equal = 0;
    for (int y = 0; y < values.rows; ++y)
        for (const float *value = values[y]; value != values[y] + values.cols; ++value) {
            equal = *value > top ? 1 : equal + (*value == top);
            top = std::max(top, *value);
        }
    return double(top) > plateauHeight * noise && equal >= plateauPixels;
}

struct MeasuredStars::Way {
    double sigma, maxSigma; // pixels
    bool fixedSigma;
};

MeasuredStars::MeasuredStars(const cv::Mat &picture, const SkyBackground &sky, int pixels)
    : frame(picture), background(sky), bin(pixels)
{
}

bool MeasuredStars::known(double x, double y) const
{
    return std::any_of(stars.begin(), stars.end(),
                       [x, y](const MeasuredStar &other) { return isWithin(other.star, x, y); });
}

MeasuredStars::Way MeasuredStars::wayFor(const Candidate &candidate, int searchBin) const
{
    if (candidate.peak > brightPeak)
        return {std::min(candidate.sigma, widestSigma), widestSigma, false};
    if (isWidthSure())
        return {frameSigma, frameSigma, true};
    const double most = faintestSigma * searchBin;
    return {std::min(candidate.sigma, most), most, false};
}

std::optional<MeasuredStar> MeasuredStars::measure(const Candidate &candidate, const Way &way,
                                                   double noiseScale, double minSnr) const
{
    // Wide enough for a star that turns out half as wide again.
    const double sigma = way.fixedSigma ? way.sigma : 1.5 * std::max(way.sigma, 1.0);
    const int radius = std::min(int(std::ceil(windowSigmas * sigma)) + windowMargin, largestRadius);
    Window window = readWindow(frame, candidate.x, candidate.y, radius);
    if (window.values.empty())
        return std::nullopt;
    const double u = (candidate.x + 0.5) / bin - 0.5, v = (candidate.y + 0.5) / bin - 0.5;
    // A pixel's noise is `bin` times that of a binned one.
    const double noise = double(background.noiseAt(u, v)) * bin;
    // Raw values of a flat top stay equal: one level is subtracted for the background.
    window.values -= background.levelAt(u, v);
    replaceHotPixels(window.values, float(noise));
    const std::optional<Moments> moments =
        measureMoments(window.values, candidate.x - window.left, candidate.y - window.top,
                       {way.sigma, way.fixedSigma, way.maxSigma, std::max(3.0, 2.0 * way.sigma)});
    if (!moments)
        return std::nullopt;
    const double snr = moments->flux / (fluxNoise(*moments) * noise * noiseScale);
    const double fwhm = fwhmOf(moments->variance);
    if (!(snr >= minSnr) || !(fwhm >= minFwhm))
        return std::nullopt;
    const int x = int(std::lround(moments->x)), y = int(std::lround(moments->y));
    const int reach = std::max(2, int(fwhm));
    const cv::Rect core = cv::Rect(x - reach, y - reach, 2 * reach + 1, 2 * reach + 1) &
                          cv::Rect(0, 0, window.values.cols, window.values.rows);
    if (core.empty())
        return std::nullopt;
    const bool saturated =
        isSaturated(window.values(core), double(window.brightest), fullScale(frame), noise);
    return MeasuredStar{
        {moments->x + window.left, moments->y + window.top, moments->flux, snr, fwhm, saturated},
        moments->elongation};
}

void MeasuredStars::learnWidth()
{
    std::vector<double> widths;
    for (const MeasuredStar &found : stars)
        if (found.star.snr > sureSnr && !found.star.saturated)
            widths.push_back(found.star.fwhm);
    if (widths.size() < sureStars)
        return;
    const auto middle = widths.begin() + std::ptrdiff_t(widths.size() / 2);
    std::nth_element(widths.begin(), middle, widths.end());
    frameSigma = sigmaOf(*middle);
}

void MeasuredStars::add(const Detection &found, int searchBin, double minSnr, std::size_t most)
{
    bool bright = true;
    for (const Candidate &candidate : found.candidates) {
        if (stars.size() >= most)
            break;
        if (bright && candidate.peak <= brightPeak) {
            bright = false;
            learnWidth();
        }
        if (known(candidate.x, candidate.y))
            continue;
        const std::optional<MeasuredStar> measured =
            measure(candidate, wayFor(candidate, searchBin), found.noiseScale, minSnr);
        if (measured && insideEdges(measured->star, frame) &&
            !known(measured->star.x, measured->star.y))
            stars.push_back(*measured);
    }
    learnWidth();
}

double MeasuredStars::fwhm() const
{
    return medianOfTypical(stars, [](const MeasuredStar &star) { return star.star.fwhm; });
}

double MeasuredStars::elongation() const
{
    if (stars.empty())
        return 1.0;
    return medianOfTypical(stars, [](const MeasuredStar &star) { return star.elongation; });
}

void MeasuredStars::sift()
{
    constexpr double sharpest = 0.5, widest = 2.5, longest = 2.0; // times the median
    const double width = fwhm(), length = elongation();
    const auto unlike = [&](const MeasuredStar &found) {
        if (found.star.saturated)
            return found.elongation > longest * length;
        if (found.star.fwhm > 2.0 * widest * width)
            return true;
        return found.star.snr > sureSnr &&
               (found.star.fwhm < sharpest * width || found.star.fwhm > widest * width ||
                found.elongation > longest * length);
    };
    stars.erase(std::remove_if(stars.begin(), stars.end(), unlike), stars.end());
    std::sort(stars.begin(), stars.end(), [](const MeasuredStar &a, const MeasuredStar &b) {
        return a.star.flux > b.star.flux;
    });
    std::vector<MeasuredStar> apart;
    for (const MeasuredStar &found : stars)
        if (std::none_of(apart.begin(), apart.end(), [&found](const MeasuredStar &other) {
                return isWithin(other.star, found.star.x, found.star.y);
            }))
            apart.push_back(found);
    stars = std::move(apart);
}
} // namespace recognition
