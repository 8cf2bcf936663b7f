// SPDX-License-Identifier: MIT
// Smoothing by OpenCV, connected pixels above the threshold by SEP.
#include "recognition/detection.h"

#include "recognition/sepheader.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <memory>
#include <opencv2/imgproc.hpp>
#include <utility>

namespace recognition
{
namespace
{
constexpr double kernelSigma = 0.9; // pixels of the picture: between stars of 1.5 and 4 pixels
constexpr int kernelSize = 5;
constexpr int leastArea = 1;
constexpr int deblendLevels = 8;
constexpr double deblendContrast = 0.02;
constexpr std::size_t pixelStack = 100000;
constexpr double mostLight = 0.2;      // part of the picture above the threshold
constexpr std::size_t sampled = 10000; // pixels that the smoothed noise is measured by

// Alone: the four pixels beside it have less than this share of its light together. Those of a star
// 1.5 pixels wide, centred on a pixel, have 1.5 times as much as the pixel.
constexpr float loneShare = 0.5f;
constexpr float loneThreshold = 5.0f; // times the noise

struct CatalogueDeleter {
    void operator()(sep_catalog *found) const
    {
        // SEP 1.2.1 forgets these two; a later one finds that there is nothing left to free.
        std::free(std::exchange(found->flux, nullptr));
        std::free(std::exchange(found->cflux, nullptr));
        sep_catalog_free(found);
    }
};

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

std::vector<float> sampleOf(const cv::Mat1f &image)
{
    std::vector<float> sample;
    const std::size_t step = image.total() / sampled | 1; // odd: not always the same columns
    for (std::size_t i = 0; i < image.total(); i += step)
        sample.push_back(image.ptr<float>()[i]);
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

sep_image sepImage(const cv::Mat1f &image)
{
    sep_image out = {};
    out.data = image.data;
    out.dtype = SEP_TFLOAT;
    out.w = image.cols;
    out.h = image.rows;
    out.noise_type = SEP_NOISE_NONE;
    return out;
}

Candidate candidateOf(const sep_catalog &found, int i, int bin)
{
    const double centre = 0.5 * (bin - 1);
    // Above the threshold a faint star shows its top alone; the moments start from it and grow.
    const double size = std::sqrt(std::max(0.5, double(found.a[i]) * double(found.b[i])));
    return {found.x[i] * bin + centre, found.y[i] * bin + centre, size * bin, found.peak[i]};
}
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

Detection detect(const cv::Mat1f &normalised, int bin, double threshold)
{
    Detection out;
    const cv::Mat1f image = smoothed(normalised);
    const std::vector<float> sample = sampleOf(image);
    const Spread spread = spreadOf(sample);
    out.noiseScale = std::max(1.0, double(spread.deviation));
    const float limit =
        std::max(spread.median, 0.0f) + static_cast<float>(threshold * out.noiseScale);
    out.result = DetectionResult::TooMuchLight;
    const auto bright =
        std::count_if(sample.begin(), sample.end(), [limit](float value) { return value > limit; });
    if (double(bright) > mostLight * double(sample.size()))
        return out;
    sep_set_extract_pixstack(pixelStack);
    const sep_image picture = sepImage(image);
    sep_catalog *found = nullptr;
    // Its pixel stack overflows, or an object has too many parts, only where there is no sky.
    if (sep_extract(&picture, limit, SEP_THRESH_ABS, leastArea, nullptr, 0, 0, SEP_FILTER_CONV,
                    deblendLevels, deblendContrast, 0, 1.0, &found) != 0)
        return out;
    const std::unique_ptr<sep_catalog, CatalogueDeleter> keeper(found);
    out.result = DetectionResult::Done;
    for (int i = 0; i < found->nobj; ++i)
        out.candidates.push_back(candidateOf(*found, i, bin));
    std::sort(out.candidates.begin(), out.candidates.end(),
              [](const Candidate &a, const Candidate &b) { return a.peak > b.peak; });
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
