// SPDX-License-Identifier: MIT
// The weight follows the star until both have one place and one width.
#include "recognition/starmoments.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace recognition
{
namespace
{
constexpr double pi = 3.141592653589793;
constexpr double gaussianWidth = 2.3548200450309493; // full width at half maximum over sigma
constexpr double pixelVariance = 1.0 / 12.0;
constexpr double minSigma = 0.7; // pixels, of the weight: narrower it would skip between pixels
constexpr int maxSteps = 24;
constexpr double settledShift = 0.001, settledSigma = 0.005;
constexpr double maxElongation = 10.0;

struct Sums {
    double light = 0, x = 0, y = 0, xx = 0, yy = 0, xy = 0;
};

class Weight
{
public:
    Sums apply(const cv::Mat1f &values, double x, double y, double sigma)
    {
        fill(columns, x, sigma, values.cols);
        fill(rows, y, sigma, values.rows);
        Sums sum;
        for (int j = 0; j < values.rows; ++j) {
            const double dy = j - y, weight = rows[std::size_t(j)];
            const float *value = values[j];
            double light = 0, lightX = 0, lightXx = 0;
            for (int i = 0; i < values.cols; ++i) {
                const double part = columns[std::size_t(i)] * double(value[i]), dx = i - x;
                light += part;
                lightX += part * dx;
                lightXx += part * dx * dx;
            }
            sum.light += weight * light;
            sum.x += weight * lightX;
            sum.xx += weight * lightXx;
            sum.y += weight * light * dy;
            sum.yy += weight * light * dy * dy;
            sum.xy += weight * lightX * dy;
        }
        return sum;
    }

private:
    static void fill(std::vector<double> &weights, double centre, double sigma, int n)
    {
        weights.resize(std::size_t(n));
        const double scale = -0.5 / (sigma * sigma);
        for (int i = 0; i < n; ++i)
            weights[std::size_t(i)] = std::exp(scale * (i - centre) * (i - centre));
    }

    std::vector<double> columns, rows;
};

struct StarShape {
    double mean, larger, smaller; // variances
};

// Without the weight: the inverses of the matrices of two Gaussians add in their product.
StarShape shapeOf(const Sums &sum, double sigma)
{
    const double xx = sum.xx / sum.light, yy = sum.yy / sum.light, xy = sum.xy / sum.light;
    const double middle = 0.5 * (xx + yy), half = std::hypot(0.5 * (xx - yy), xy);
    const double widest = sigma * sigma * maxElongation * maxElongation;
    const auto bare = [&](double weighted) {
        const double inverse = 1.0 / std::max(weighted, 1e-3) - 1.0 / (sigma * sigma);
        return inverse > 1.0 / widest ? 1.0 / inverse : widest;
    };
    const double larger = bare(middle + half), smaller = bare(middle - half);
    return {middle > 0.0 ? bare(middle) : 0.0, larger, smaller};
}
} // namespace

std::optional<Moments> measureMoments(const cv::Mat1f &values, double x, double y,
                                      const MomentsOptions &options)
{
    Weight weight;
    double atX = x, atY = y;
    // The greatest may be below the least, where the frame's stars are as narrow as that.
    double sigma = std::min(std::max(options.sigma, minSigma), options.maxSigma);
    for (int step = 0;; ++step) {
        const Sums sum = weight.apply(values, atX, atY, sigma);
        if (!(sum.light > 0.0))
            return std::nullopt;
        const StarShape shape = shapeOf(sum, sigma);
        const double star = std::clamp(shape.mean, 0.0, 4.0 * sigma * sigma);
        const double factor = (sigma * sigma + star) / (sigma * sigma);
        const double dx = sum.x / sum.light * factor, dy = sum.y / sum.light * factor;
        const double wanted =
            options.fixedSigma
                ? sigma
                : std::clamp(std::sqrt(star), minSigma, std::min(options.maxSigma, 1.5 * sigma));
        const bool settled =
            std::hypot(dx, dy) < settledShift && std::abs(wanted - sigma) < settledSigma * sigma;
        if (settled || step == maxSteps) {
            const double flux = sum.light * factor;
            return Moments{atX,
                           atY,
                           flux,
                           sigma,
                           shape.mean,
                           std::sqrt(std::clamp(shape.larger / std::max(shape.smaller, 1e-3), 1.0,
                                                maxElongation * maxElongation))};
        }
        atX += std::clamp(dx, -sigma, sigma);
        atY += std::clamp(dy, -sigma, sigma);
        if (std::hypot(atX - x, atY - y) > options.maxShift)
            return std::nullopt;
        sigma = wanted;
    }
}

double fluxNoise(const Moments &moments)
{
    const double weight = moments.weightSigma * moments.weightSigma;
    const double star = std::clamp(moments.variance, 0.0, 4.0 * weight);
    return (weight + star) / weight * moments.weightSigma * std::sqrt(pi);
}

double fwhmOf(double variance)
{
    return gaussianWidth * std::sqrt(std::max(variance - pixelVariance, 0.0));
}

double sigmaOf(double fwhm)
{
    return std::sqrt(fwhm * fwhm / (gaussianWidth * gaussianWidth) + pixelVariance);
}
} // namespace recognition
