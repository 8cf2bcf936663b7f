// SPDX-License-Identifier: MIT
// The fixed point of turned frames, by least squares, with frames that disagree left out.
#include "recognition/axis.h"

#include "recognition/earthview.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace recognition
{
namespace
{
constexpr double scaleDifference = 0.02;    // relative, between frames of one camera
constexpr double agreementSigmas = 4.0;     // of a frame's own error
constexpr double agreementArcseconds = 1.5; // that never count as a bump

using Frames = std::vector<const Recognition *>;

bool areOfOneCamera(const Frames &frames)
{
    const Recognition &first = *frames.front();
    return std::all_of(frames.begin(), frames.end(), [&](const Recognition *frame) {
        return frame->width == first.width && frame->height == first.height &&
               frame->mirrored == first.mirrored && frame->hemisphere == first.hemisphere &&
               std::abs(frame->scale / first.scale - 1.0) < scaleDifference;
    });
}

// Between -180 and 180 degrees.
double wrapped(double degrees)
{
    return degrees - 360.0 * std::round(degrees / 360.0);
}

// The greatest difference between the turns, on either side of the first one.
double spanOf(const std::vector<double> &turns)
{
    const auto [least, greatest] = std::minmax_element(turns.begin(), turns.end());
    return *greatest - *least;
}

double allowedDisagreement(const EarthView &view)
{
    return agreementSigmas * view.sigma() + agreementArcseconds * astrometry::arcsecond;
}

using Indices = std::vector<std::size_t>;

Indices agreeing(const std::vector<EarthView> &views, const FixedPoint &point)
{
    Indices indices;
    for (std::size_t i = 0; i < views.size(); ++i)
        if (views[i].distance(point) <= allowedDisagreement(views[i]))
            indices.push_back(i);
    return indices;
}

// The largest set of frames that agrees on one point, tried from every pair.
Indices largestAgreement(const std::vector<EarthView> &views, const std::vector<double> &turns)
{
    constexpr double minPairTurn = 5.0; // degrees
    Indices best;
    for (std::size_t i = 0; i < views.size(); ++i)
        for (std::size_t k = i + 1; k < views.size(); ++k) {
            if (std::abs(wrapped(turns[i] - turns[k])) < minPairTurn)
                continue;
            const auto point = fixedPointOf(views, {i, k});
            if (!point)
                continue;
            const Indices agreed = agreeing(views, *point);
            if (agreed.size() > best.size())
                best = agreed;
        }
    return best;
}

// What the frames say together: the views, and their turns, of which steps of less than half a turn
// add up.
struct Turns {
    std::vector<EarthView> views;
    std::vector<double> degrees;
};

Turns turnsOf(const Frames &frames)
{
    Turns turns;
    double sum = 0.0;
    for (const Recognition *frame : frames) {
        turns.views.emplace_back(*frame, frames.front()->pole);
        if (turns.views.size() > 1)
            sum += turns.views.back().turnAgainst(turns.views[turns.views.size() - 2]);
        turns.degrees.push_back(sum);
    }
    return turns;
}

struct Consensus {
    FixedPoint point;
    Indices used;
};

// All frames if they agree, else the largest set that does. Two frames agree on some axis whatever
// happened: a third frame shows which one moved; most frames must agree.
std::optional<Consensus> consensusOf(const Turns &turns)
{
    Indices all(turns.views.size());
    std::iota(all.begin(), all.end(), std::size_t{0});
    const std::optional<FixedPoint> point = fixedPointOf(turns.views, all);
    if (point && agreeing(turns.views, *point).size() == all.size())
        return Consensus{*point, all};
    const Indices used = largestAgreement(turns.views, turns.degrees);
    if (used.size() < 3 || 2 * used.size() <= all.size())
        return std::nullopt;
    std::vector<double> usedTurns;
    for (const std::size_t i : used)
        usedTurns.push_back(turns.degrees[i]);
    const std::optional<FixedPoint> without = fixedPointOf(turns.views, used);
    if (!without || spanOf(usedTurns) < minTurn)
        return std::nullopt;
    return Consensus{*without, used};
}

void fill(const Consensus &consensus, const Frames &frames, const Indices &numbers, Axis &axis)
{
    axis.status = AxisStatus::Found;
    axis.checked = consensus.used.size() > 2;
    axis.place = consensus.point.pixel;
    axis.covariance = consensus.point.covariance;
    axis.rms = consensus.point.rms / astrometry::arcsecond;
    axis.sigmaArcseconds = frames.front()->mapping.scaleAt(axis.place) *
                           std::sqrt(0.5 * (axis.covariance.xx + axis.covariance.yy));
    for (std::size_t i = 0; i < frames.size(); ++i) {
        const auto at = std::find(consensus.used.begin(), consensus.used.end(), i);
        if (at == consensus.used.end()) {
            axis.bumped.push_back(numbers[i]);
            continue;
        }
        const auto number = static_cast<std::size_t>(at - consensus.used.begin());
        axis.shared.push_back(
            {frames[i]->utcSeconds, frames[i]->pole, consensus.point.shared[number]});
    }
}
} // namespace

Axis axisOfTurns(const std::vector<Recognition> &given)
{
    Axis axis;
    axis.turns.assign(given.size(), 0.0);
    Frames frames;
    Indices numbers; // of the frames among those given
    for (std::size_t i = 0; i < given.size(); ++i)
        if (given[i].status == RecognitionStatus::Recognised) {
            frames.push_back(&given[i]);
            numbers.push_back(i);
        }
    if (frames.size() < 2)
        return axis;
    if (!areOfOneCamera(frames)) {
        axis.status = AxisStatus::DifferentFrames;
        return axis;
    }
    const Turns turns = turnsOf(frames);
    for (std::size_t i = 0; i < frames.size(); ++i)
        axis.turns[numbers[i]] = wrapped(turns.degrees[i]);
    axis.totalTurn = spanOf(turns.degrees);
    if (axis.totalTurn < minTurn) {
        axis.status = AxisStatus::TooLittleTurn;
        return axis;
    }
    if (const auto consensus = consensusOf(turns))
        fill(*consensus, frames, numbers, axis);
    else
        axis.status = AxisStatus::Bumped;
    return axis;
}

Covariance sharedError(const Axis &axis, const Recognition &frame)
{
    const auto at =
        std::find_if(axis.shared.begin(), axis.shared.end(), [&frame](const SharedError &one) {
            return one.utcSeconds == frame.utcSeconds && one.pole.x == frame.pole.x &&
                   one.pole.y == frame.pole.y;
        });
    return at == axis.shared.end() ? Covariance{} : at->covariance;
}

std::string reason(const Axis &axis)
{
    switch (axis.status) {
    case AxisStatus::Found: {
        std::string text = "The axis was found.";
        if (!axis.bumped.empty()) {
            text = "The axis was found without these frames, before or after which tripod, bolts "
                   "or camera moved:";
            for (const std::size_t frame : axis.bumped)
                text += ' ' + std::to_string(frame + 1);
            text += '.';
        }
        return text;
    }
    case AxisStatus::TooFewFrames:
        return "At least two recognised frames are needed.";
    case AxisStatus::DifferentFrames:
        return "The frames are not of one camera: size, scale, mirroring or hemisphere differ.";
    case AxisStatus::TooLittleTurn:
        return "The axis turned too little: turn it by 15 degrees or more in all.";
    case AxisStatus::Bumped:
        break;
    }
    return "The frames do not turn about one axis: tripod, bolts or camera moved between them. "
           "Take them again, or one more.";
}
} // namespace recognition
