// SPDX-License-Identifier: MIT
// Model choice, robust weights and noise of the mapping's fit.
#include "recognition/modelchoice.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>

namespace recognition
{
namespace
{
using Complex = std::complex<double>;

constexpr double biweightSigmas = 6.0; // Tukey's constant, in sigmas of a star
constexpr double minVariance = 1e-24;  // radians squared a pixel squared
constexpr double roundStars = 12.0;    // so many stars' worth of roundness in the noise

Complex residualOf(const SkyMapping::Solution &fit, const FitPoint &point)
{
    std::array<Complex, SkyMapping::maxTerms> terms;
    evaluateTerms(fit.terms, point.pixel, terms.data());
    Complex residual = point.plane;
    for (std::size_t i = 0; i < termCount(fit.terms); ++i)
        residual -= fit.coefficients[i] * terms[i];
    return residual;
}

struct Candidate {
    PolynomialFit fit;
    double criterion;  // Bayesian information criterion
    double cautiously; // with a larger penalty where stars are few
};

Candidate judged(const PolynomialFit &fit)
{
    const double n = 2.0 * fit.weights;
    const double k = static_cast<double>(freeNumbers(fit.fit.terms));
    const double misfit = n * std::log(fit.chiSquared / n + 1e-30);
    const double penalty = k * std::log(n);
    // McQuarrie (1999), Statistics & Probability Letters 44, 79: the correction for small samples.
    const double correction = n / std::max(n - k - 2.0, 1.0);
    return {fit, misfit + penalty, misfit + penalty * correction};
}

// Gives the first candidate the others as rivals. Neither criterion is sure with few stars: each
// rival has the odds of the one that is kinder to it, but not more than the first candidate.
void addRivals(std::vector<Candidate> &candidates)
{
    const Candidate &best = candidates.front();
    std::array<double, SkyMapping::maxRivals> odds = {};
    double sum = 1.0;
    for (std::size_t i = 1; i < candidates.size(); ++i) {
        const double worse = std::min(candidates[i].criterion - best.criterion,
                                      candidates[i].cautiously - best.cautiously);
        odds[i - 1] = std::exp(-0.5 * std::max(worse, 0.0));
        sum += odds[i - 1];
    }
    auto &rivals = candidates.front().fit.fit.rivals;
    for (std::size_t i = 1; i < candidates.size(); ++i)
        rivals[i - 1] = {candidates[i].fit.fit, odds[i - 1] / sum};
}
} // namespace

double medianOf(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

std::optional<PolynomialFit> fitBestModel(const std::vector<FitPoint> &points)
{
    constexpr MappingModel models[] = {MappingModel::Similarity, MappingModel::Radial,
                                       MappingModel::Affine,     MappingModel::AffineRadial,
                                       MappingModel::Quadratic,  MappingModel::Cubic};
    static_assert(std::size(models) == SkyMapping::maxRivals + 1);
    std::vector<Candidate> candidates;
    for (const MappingModel model : models) {
        const auto terms = static_cast<double>(termCount(model));
        const auto fit = fitPolynomial(model, points);
        if (!fit || (model != MappingModel::Similarity && fit->weights < 2.0 * terms + 2.0))
            continue;
        candidates.push_back(judged(*fit));
    }
    if (candidates.empty())
        return std::nullopt;
    auto best = std::min_element(
        candidates.begin(), candidates.end(),
        [](const Candidate &a, const Candidate &b) { return a.criterion < b.criterion; });
    std::iter_swap(candidates.begin(), best);
    addRivals(candidates);
    return candidates.front().fit;
}

void weighRobustly(const SkyMapping::Solution &fit, std::vector<FitPoint> &points)
{
    constexpr double medianOfTwoAxes = 1.3863; // of chi squared with two degrees of freedom
    std::vector<double> squares;
    for (const FitPoint &p : points)
        squares.push_back(std::norm(residualOf(fit, p)) / p.variance);
    const double n = static_cast<double>(points.size());
    const double used = 0.5 * static_cast<double>(freeNumbers(fit.terms));
    const double freedom = std::max(n - used, 1.0) / n;
    // Stars without any error leave no scatter to judge by.
    const double variance = std::max(medianOf(squares) / medianOfTwoAxes / freedom, minVariance);
    for (std::size_t i = 0; i < points.size(); ++i) {
        const double u = squares[i] / (biweightSigmas * biweightSigmas * variance);
        points[i].weight = u < 1.0 ? (1.0 - u) * (1.0 - u) : 0.0;
    }
}

Covariance noiseOf(const SkyMapping::Solution &fit, const std::vector<FitPoint> &points)
{
    Covariance sum;
    double weights = 0.0;
    for (const FitPoint &p : points) {
        const Complex r = residualOf(fit, p);
        const double weight = p.weight / p.variance;
        sum.xx += weight * r.real() * r.real();
        sum.xy += weight * r.real() * r.imag();
        sum.yy += weight * r.imag() * r.imag();
        weights += p.weight;
    }
    const double used = 0.5 * static_cast<double>(freeNumbers(fit.terms));
    const double freedom = std::max(weights - used, 1.0);
    const double student = 2.0 * freedom > 4.0 ? freedom / (freedom - 1.0) : 3.0;
    const double round = 0.5 * (sum.xx + sum.yy) / freedom;
    const double own = freedom / (freedom + roundStars);
    return {student * (own * sum.xx / freedom + (1.0 - own) * round),
            student * own * sum.xy / freedom,
            student * (own * sum.yy / freedom + (1.0 - own) * round)};
}
} // namespace recognition
