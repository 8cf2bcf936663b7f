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
    const auto shrunk = [gain](double sigma) {
        return std::max(sigma / gain, std::min(sigma, floor));
    };
    result.frameX = shrunk(result.frameX);
    result.frameY = shrunk(result.frameY);
    return result;
}

bool SteadyFigures::hasMoved(const FrameError &error) const
{
    if (recent.empty())
        return false;
    const FrameError before = mean();
    return error.hasSite != before.hasSite ||
           std::abs(error.x - before.x) > movedSigmas * std::hypot(error.frameX, before.frameX) ||
           std::abs(error.y - before.y) > movedSigmas * std::hypot(error.frameY, before.frameY);
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
