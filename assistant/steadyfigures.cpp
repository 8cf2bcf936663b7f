// SPDX-License-Identifier: MIT
// A short mean, shorter still during a slow movement, that a jump resets.
#include "assistant/steadyfigures.h"

#include <algorithm>
#include <cmath>

namespace assistant
{
namespace
{
constexpr double drivenSigmas = 3.0;
constexpr double driftSigmas = 3.0; // from which a drift shortens the mean
constexpr double noticedLag = 0.3;  // of a single frame's standard error
} // namespace

/// By least squares over all frames that are kept.
SteadyFigures::Drift SteadyFigures::drift() const
{
    Drift result;
    const double n = double(recent.size());
    double centre = 0.0, spread = 0.0;
    for (const Sample &sample : recent)
        centre += sample.seconds / n;
    for (const Sample &sample : recent)
        spread += (sample.seconds - centre) * (sample.seconds - centre);
    if (!(spread > 0.0))
        return result;
    for (const Sample &sample : recent) {
        const double share = (sample.seconds - centre) / spread;
        result.x += share * sample.error.x;
        result.y += share * sample.error.y;
        result.xx += share * share * sample.error.frame.xx;
        result.yy += share * share * sample.error.frame.yy;
    }
    return result;
}

/// The newest frames, so many that a drift does not make their mean lag noticeably.
std::size_t SteadyFigures::usable(const Drift &by) const
{
    const auto counts = [](double rate, double variance) {
        return std::abs(rate) > driftSigmas * std::sqrt(variance);
    };
    if (!counts(by.x, by.xx) && !counts(by.y, by.yy))
        return recent.size();
    const recognition::Covariance &frame = recent.back().error.frame;
    const auto isLate = [](double lag, double variance) {
        return std::abs(lag) > noticedLag * std::sqrt(variance);
    };
    std::size_t number = 1;
    while (number < recent.size()) {
        const double age = meanAge(number + 1);
        if (isLate(by.x * age, frame.xx) || isLate(by.y * age, frame.yy))
            break;
        ++number;
    }
    return number;
}

double SteadyFigures::meanAge(std::size_t number) const
{
    double sum = 0.0;
    for (std::size_t i = recent.size() - number; i < recent.size(); ++i)
        sum += recent.back().seconds - recent[i].seconds;
    return sum / double(number);
}

FrameError SteadyFigures::mean(std::size_t number) const
{
    FrameError result = recent.back().error;
    result.x = result.y = 0.0;
    for (std::size_t i = recent.size() - number; i < recent.size(); ++i) {
        result.x += recent[i].error.x / double(number);
        result.y += recent[i].error.y / double(number);
    }
    const double gain = std::sqrt(double(std::min(number, independent)));
    // The correlation of x and y stays what it was.
    const auto factor = [gain](double variance) {
        const double sigma = std::sqrt(variance);
        return sigma > 0.0 ? std::max(1.0 / gain, std::min(1.0, floor / sigma)) : 1.0;
    };
    const double byX = factor(result.frame.xx), byY = factor(result.frame.yy);
    result.frame = {result.frame.xx * byX * byX, result.frame.xy * byX * byY,
                    result.frame.yy * byY * byY};
    return result;
}

bool SteadyFigures::hasMoved(const FrameError &error) const
{
    if (recent.empty())
        return false;
    const FrameError before = mean(usable(drift()));
    const auto differs = [](double by, double variance) {
        return std::abs(by) > drivenSigmas * std::sqrt(variance);
    };
    return error.hasSite != before.hasSite ||
           differs(error.x - before.x, error.frame.xx + before.frame.xx) ||
           differs(error.y - before.y, error.frame.yy + before.frame.yy);
}

FrameError SteadyFigures::add(const FrameError &error, double steadySeconds)
{
    if (hasMoved(error))
        recent.clear();
    recent.push_back({error, steadySeconds});
    while (recent.size() > most || recent.back().seconds - recent.front().seconds > longest)
        recent.pop_front();
    const Drift by = drift();
    const std::size_t number = usable(by);
    const double age = meanAge(number);
    FrameError result = mean(number);
    result.frame.xx += age * age * by.x * by.x;
    result.frame.yy += age * age * by.y * by.y;
    return result;
}
} // namespace assistant
