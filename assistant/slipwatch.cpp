// SPDX-License-Identifier: MIT
// A free fit of the fixed pixel to the frames of each turn.
#include "assistant/slipwatch.h"

#include "recognition/earthview.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace assistant
{
namespace
{
using recognition::EarthView;
using recognition::PixelPlace;
using recognition::Recognition;

constexpr double restingTurn = 0.1; // degrees from frame to frame: above tracking, below any hand
constexpr double stepOfKept = 0.5;  // degrees
constexpr std::size_t minFrames = 4;
constexpr double movedSigmas = 4.0;
constexpr double movedArcseconds = 1.5;
constexpr double slipSigmas = 5.0;
constexpr double slipArcseconds = 5.0; // of the axis' place, below which no slip counts
} // namespace

void SlipWatch::reset()
{
    kept.clear();
}

void SlipWatch::shiftClock(double seconds)
{
    for (Kept &one : kept)
        one.frame.utcSeconds += seconds;
}

bool SlipWatch::fieldMovedAlone(const Recognition &frame, PixelPlace at) const
{
    const EarthView now(frame, at);
    const EarthView then(kept.back().frame, at);
    const double moved =
        std::hypot(now.linear().x - then.linear().x, now.linear().y - then.linear().y);
    const double noise = movedSigmas * std::hypot(now.sigma(), then.sigma());
    return std::abs(now.turnAgainst(then)) < restingTurn &&
           (moved - noise) / astrometry::arcsecond > movedArcseconds;
}

double SlipWatch::turned() const
{
    const auto [least, greatest] = std::minmax_element(
        kept.begin(), kept.end(), [](const Kept &a, const Kept &b) { return a.turn < b.turn; });
    return greatest->turn - least->turn;
}

bool SlipWatch::disagrees(const recognition::Axis &axis) const
{
    std::vector<EarthView> views;
    for (const Kept &one : kept)
        views.emplace_back(one.frame, axis.place);
    std::vector<std::size_t> all(views.size());
    std::iota(all.begin(), all.end(), std::size_t{0});
    const auto point = recognition::fixedPointOf(views, all);
    if (!point)
        return false;
    // Frames that agree on no pixel were taken while the bolts moved as well.
    const bool agree = std::all_of(views.begin(), views.end(), [&](const EarthView &view) {
        const double certain = view.distance(*point) - movedSigmas * view.sigma();
        return certain / astrometry::arcsecond <= movedArcseconds;
    });
    if (!agree)
        return false;
    const double scale = kept.back().frame.scale;
    const double off =
        scale * std::hypot(point->pixel.x - axis.place.x, point->pixel.y - axis.place.y);
    const recognition::Covariance &c = point->covariance;
    const double sigma = std::hypot(scale * std::sqrt(0.5 * (c.xx + c.yy)), axis.sigmaArcseconds);
    return off > slipSigmas * sigma + slipArcseconds;
}

bool SlipWatch::hasSlipped(const Recognition &frame, const recognition::Axis &axis)
{
    double turn = 0.0;
    if (!kept.empty()) {
        const Recognition &last = kept.back().frame;
        turn =
            kept.back().turn + EarthView(frame, frame.pole).turnAgainst(EarthView(last, last.pole));
        if (fieldMovedAlone(frame, axis.place))
            kept.clear();
        else if (std::abs(turn - kept.back().turn) < stepOfKept)
            return false;
    }
    if (kept.size() == maxKept)
        kept.erase(kept.begin());
    kept.push_back({frame, turn});
    kept.back().frame.matched = {};
    return kept.size() >= minFrames && turned() >= minTurn && disagrees(axis);
}
} // namespace assistant
