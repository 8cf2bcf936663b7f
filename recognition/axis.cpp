// SPDX-License-Identifier: MIT
// The fixed point of turned frames, by least squares, with frames that disagree left out.
#include "recognition/axis.h"

#include "recognition/earthview.h"

#include <algorithm>
#include <cmath>

namespace recognition
{
namespace
{
constexpr double scaleDifference = 0.02;    // relative, between frames of one camera
constexpr double agreementSigmas = 4.0;     // of a frame's own error
constexpr double agreementArcseconds = 1.5; // that are never taken for a bump

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

// The greatest difference between the turns, which may lie on either side of the first one.
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
    constexpr double leastPairTurn = 5.0; // degrees
    Indices best;
    for (std::size_t i = 0; i < views.size(); ++i)
        for (std::size_t k = i + 1; k < views.size(); ++k) {
            if (std::abs(wrapped(turns[i] - turns[k])) < leastPairTurn)
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

bool isSound(const std::vector<EarthView> &views, const std::optional<FixedPoint> &point)
{
    return point && agreeing(views, *point).size() == views.size();
}
} // namespace

Axis axisOfTurns(const std::vector<Recognition> &given)
{
    Axis axis;
    axis.turns.assign(given.size(), 0.0);
    Frames frames;
    Indices numbers;
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
    std::vector<EarthView> views;
    std::vector<double> turns;
    double before = 0.0;
    for (std::size_t i = 0; i < frames.size(); ++i) {
        views.emplace_back(*frames[i], frames.front()->pole);
        // Steps of less than half a turn add up.
        before += i == 0 ? 0.0 : wrapped(views[i].turnAgainst(views[i - 1]));
        turns.push_back(before);
        axis.turns[numbers[i]] = wrapped(before);
    }
    axis.totalTurn = spanOf(turns);
    if (axis.totalTurn < leastTurn) {
        axis.status = AxisStatus::TooLittleTurn;
        return axis;
    }
    Indices used(frames.size());
    for (std::size_t i = 0; i < used.size(); ++i)
        used[i] = i;
    std::optional<FixedPoint> point = fixedPointOf(views, used);
    if (!isSound(views, point)) {
        used = largestAgreement(views, turns);
        // Two frames agree on some axis whatever happened: it takes a third to tell who moved, and
        // more frames in agreement than out of it.
        const bool majority = used.size() >= 3 && 2 * used.size() > views.size();
        point = majority ? fixedPointOf(views, used) : std::nullopt;
        std::vector<double> usedTurns;
        for (const std::size_t i : used)
            usedTurns.push_back(turns[i]);
        if (!point || spanOf(usedTurns) < leastTurn) {
            axis.status = AxisStatus::Bumped;
            return axis;
        }
        for (std::size_t i = 0; i < views.size(); ++i)
            if (std::find(used.begin(), used.end(), i) == used.end())
                axis.bumped.push_back(numbers[i]);
    }
    axis.status = AxisStatus::Found;
    axis.checked = used.size() > 2;
    axis.place = point->pixel;
    axis.covariance = point->covariance;
    axis.rms = point->rms / astrometry::arcsecond;
    axis.sigmaArcseconds = frames.front()->mapping.scaleAt(axis.place) *
                           std::sqrt(0.5 * (axis.covariance.xx + axis.covariance.yy));
    return axis;
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
