// SPDX-License-Identifier: MIT
// A short mean that any movement resets.
#include "assistant/steadyfigures.h"

#include <algorithm>
#include <cmath>

namespace assistant
{
namespace
{
constexpr double movedSigmas = 3.0;
}

FrameError SteadyFigures::mean() const
{
    FrameError result = recent.back().error;
    result.x = result.y = 0.0;
    for (const Sample &sample : recent) {
        result.x += sample.error.x;
        result.y += sample.error.y;
    }
    const double n = double(recent.size());
    result.x /= n;
    result.y /= n;
    const double gain = std::sqrt(double(std::min(recent.size(), independent)));
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
    const FrameError before = mean();
    const auto differs = [](double by, double variance) {
        return std::abs(by) > movedSigmas * std::sqrt(variance);
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
    return mean();
}
} // namespace assistant
