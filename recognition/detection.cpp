// SPDX-License-Identifier: MIT
// Smoothing by OpenCV, then peaks and the regions about them. SEP 1.2.1 could extract too, but
// loses eight bytes an object at every call.
#include "recognition/detection.h"

#include <algorithm>
#include <cmath>
#include <opencv2/imgproc.hpp>

namespace recognition
{
namespace
{
constexpr double kernelSigma = 0.9; // pixels of the picture: between stars of 1.5 and 4 pixels
constexpr int kernelSize = 5;
constexpr std::size_t maxPeaks = 2000;
constexpr std::size_t largestRegion = 4000; // pixels
constexpr double maxLight = 0.2;            // part of the picture above the threshold
constexpr std::size_t sampled = 10000;      // pixels that the smoothed noise is measured by

// Alone: the four pixels beside it have less than this share of its light together. Those of a star
// 1.5 pixels wide, centred on a pixel, have 1.5 times as much as the pixel.
constexpr float loneShare = 0.5f;
constexpr float loneThreshold = 5.0f; // times the noise

// The kernel lets independent noise of 1 stay 1.
cv::Mat1f smoothed(const cv::Mat1f &image)
{
    cv::Mat kernel = cv::getGaussianKernel(kernelSize, kernelSigma, CV_32F);
    kernel /= cv::norm(kernel);
    cv::Mat1f out;
    cv::sepFilter2D(image, out, CV_32F, kernel, kernel, {-1, -1}, 0, cv::BORDER_REFLECT);
    return out;
}

struct Spread {
    float median, deviation; // the deviation as one sigma of a normal distribution
};

// Without as many zeros as there are pixels that show nothing.
std::vector<float> sampleOf(const cv::Mat1f &image, double blankShare)
{
    std::vector<float> sample;
    const std::size_t step = image.total() / sampled | 1; // odd: not always the same columns
    auto blank = std::size_t(blankShare * double(image.total()) / double(step));
    for (std::size_t i = 0; i < image.total(); i += step) {
        const float value = image.ptr<float>()[i];
        if (value == 0.0f && blank > 0)
            --blank;
        else
            sample.push_back(value);
    }
    return sample;
}

Spread spreadOf(std::vector<float> sample)
{
    const auto middle = sample.begin() + static_cast<std::ptrdiff_t>(sample.size() / 2);
    std::nth_element(sample.begin(), middle, sample.end());
    const float median = *middle;
    for (float &value : sample)
        value = std::abs(value - median);
    std::nth_element(sample.begin(), middle, sample.end());
    return {median, 1.4826f * *middle};
}

bool isLone(const cv::Mat1f &image, int x, int y, float value)
{
    float beside = 0.0f;
    beside += x > 0 ? image(y, x - 1) : 0.0f;
    beside += x + 1 < image.cols ? image(y, x + 1) : 0.0f;
    beside += y > 0 ? image(y - 1, x) : 0.0f;
    beside += y + 1 < image.rows ? image(y + 1, x) : 0.0f;
    return beside < loneShare * value;
}

float meanOfNeighbours(const cv::Mat1f &image, int x, int y)
{
    const cv::Rect around = cv::Rect(x - 1, y - 1, 3, 3) & cv::Rect(0, 0, image.cols, image.rows);
    const double sum = cv::sum(image(around))[0] - image(y, x);
    return static_cast<float>(sum / (around.area() - 1));
}

// Row by row in pieces, for hardly a piece holds a bright pixel.
template <typename Visit> void visitBright(const cv::Mat1f &image, float limit, const Visit &visit)
{
    constexpr int piece = 32;
    for (int y = 0; y < image.rows; ++y) {
        const float *row = image[y];
        for (int x = 0; x < image.cols; x += piece) {
            const int end = std::min(x + piece, image.cols);
            int bright = 0;
            for (int i = x; i < end; ++i)
                bright += row[i] > limit;
            for (int i = x; bright > 0 && i < end; ++i)
                if (row[i] > limit)
                    visit(i, y);
        }
    }
}

// Higher than the eight pixels about it; of equal ones the first counts.
bool isPeak(const cv::Mat1f &image, int x, int y)
{
    if (x < 1 || y < 1 || x + 1 >= image.cols || y + 1 >= image.rows)
        return false;
    const float value = image(y, x);
    const float *above = image[y - 1] + x, *beside = image[y] + x, *below = image[y + 1] + x;
    return value > above[-1] && value > above[0] && value > above[1] && value > beside[-1] &&
           value >= beside[1] && value >= below[-1] && value >= below[0] && value >= below[1];
}

std::vector<cv::Point> highestPeaks(const cv::Mat1f &image, float limit)
{
    std::vector<cv::Point> peaks;
    visitBright(image, limit, [&](int x, int y) {
        if (isPeak(image, x, y))
            peaks.emplace_back(x, y);
    });
    std::stable_sort(peaks.begin(), peaks.end(),
                     [&image](cv::Point a, cv::Point b) { return image(a) > image(b); });
    if (peaks.size() > maxPeaks)
        peaks.resize(maxPeaks);
    return peaks;
}

// The connected pixels about a peak that are at least half as high, as far as no higher peak has
// taken them.
class HalfHeightRegions
{
public:
    explicit HalfHeightRegions(const cv::Mat1f &picture)
        : image(picture), taken(picture.size(), std::uint8_t(0))
    {
    }
    bool isTaken(cv::Point place) const { return taken(place) != 0; }

    /// @param bin pixels of the frame along one of the picture's
    /// @return nothing if the region is larger than any star
    std::optional<Candidate> candidateAt(cv::Point peak, int bin)
    {
        const float least = 0.5f * image(peak);
        double sumX = 0.0, sumY = 0.0;
        pixels.assign(1, peak);
        taken(peak) = 1;
        for (std::size_t i = 0; i < pixels.size() && pixels.size() <= largestRegion; ++i) {
            const cv::Point at = pixels[i];
            sumX += at.x;
            sumY += at.y;
            for (const cv::Point step : {cv::Point(1, 0), {-1, 0}, {0, 1}, {0, -1}})
                take(at + step, least);
        }
        if (pixels.size() > largestRegion)
            return std::nullopt;
        const double area = double(pixels.size()), centre = 0.5 * (bin - 1);
        // A Gaussian's half height is at 1.177 sigma; the smoothing widens it.
        const double variance = area / (3.141592653589793 * 1.3863) - kernelSigma * kernelSigma;
        return Candidate{sumX / area * bin + centre, sumY / area * bin + centre,
                         std::sqrt(std::max(variance, 0.5)) * bin, double(image(peak))};
    }

private:
    void take(cv::Point place, float least)
    {
        const bool inside =
            place.x >= 0 && place.y >= 0 && place.x < image.cols && place.y < image.rows;
        if (!inside || taken(place) != 0 || image(place) < least)
            return;
        taken(place) = 1;
        pixels.push_back(place);
    }

    const cv::Mat1f &image;
    cv::Mat1b taken;
    std::vector<cv::Point> pixels;
};
} // namespace

void removeHotPixels(cv::Mat1f &normalised)
{
    std::vector<cv::Point> lone;
    visitBright(normalised, loneThreshold, [&](int x, int y) {
        if (isLone(normalised, x, y, normalised(y, x)))
            lone.emplace_back(x, y);
    });
    for (const cv::Point &place : lone)
        normalised(place) = meanOfNeighbours(normalised, place.x, place.y);
}

void replaceHotPixels(cv::Mat1f &values, float noise)
{
    values *= 1.0f / noise;
    removeHotPixels(values);
    values *= noise;
}

Detection detect(const cv::Mat1f &normalised, double blankShare, int bin, double threshold)
{
    Detection out;
    const cv::Mat1f image = smoothed(normalised);
    const std::vector<float> sample = sampleOf(image, blankShare);
    if (sample.empty())
        return out;
    const Spread spread = spreadOf(sample);
    out.noiseScale = std::max(1.0, double(spread.deviation));
    const float limit =
        std::max(spread.median, 0.0f) + static_cast<float>(threshold * out.noiseScale);
    out.result = DetectionResult::TooMuchLight;
    const auto bright =
        std::count_if(sample.begin(), sample.end(), [limit](float value) { return value > limit; });
    if (double(bright) > maxLight * double(sample.size()))
        return out;
    out.result = DetectionResult::Done;
    HalfHeightRegions regions(image);
    for (const cv::Point peak : highestPeaks(image, limit))
        if (!regions.isTaken(peak))
            if (const std::optional<Candidate> found = regions.candidateAt(peak, bin))
                out.candidates.push_back(*found);
    return out;
}

cv::Mat1f halved(const cv::Mat1f &normalised)
{
    cv::Mat1f out(normalised.rows / 2, normalised.cols / 2);
    for (int y = 0; y < out.rows; ++y) {
        const float *upper = normalised[2 * y], *lower = normalised[2 * y + 1];
        float *to = out[y];
        for (int x = 0; x < out.cols; ++x)
            to[x] = 0.5f * (upper[2 * x] + upper[2 * x + 1] + lower[2 * x] + lower[2 * x + 1]);
    }
    return out;
}
} // namespace recognition
