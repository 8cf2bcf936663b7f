// SPDX-License-Identifier: MIT
// Chooses frames, fits the axis, and compares each frame with it.
#include "assistant/axistracker.h"

#include "recognition/earthview.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <numeric>

namespace assistant
{
namespace
{
using recognition::Axis;
using recognition::AxisStatus;
using recognition::EarthView;
using recognition::Recognition;

constexpr double allowedSigmas = 4.0;
constexpr double allowedArcseconds = 1.5; // that are never taken for a bump
constexpr int departuresOfABump = 3;      // in a row
constexpr double minGuessedTurn = 1.0;    // degrees
constexpr double maxGuessedSigma = 300.0; // arcseconds
constexpr double scaleDifference = 0.02;  // relative, between frames of one camera
/// The frame's centre is taken to be within this angle's sine of the axis: between two frames it
/// moves by no more than the turn times this.
constexpr double farthestAxis = 0.3;

/// Without what the fit does not need.
Recognition slim(const Recognition &frame)
{
    Recognition copy = frame;
    copy.matched = {};
    return copy;
}

double arcseconds(double radians)
{
    return radians / astrometry::arcsecond;
}

EarthView atCentre(const Recognition &frame)
{
    return EarthView(frame, {(frame.width - 1) / 2.0, (frame.height - 1) / 2.0});
}
} // namespace

void AxisTracker::reset()
{
    *this = AxisTracker();
}

void AxisTracker::shiftClock(double seconds)
{
    for (AnglePlace &one : kept)
        for (Recognition &frame : one.frames)
            frame.utcSeconds += seconds;
    if (previous)
        previous->utcSeconds += seconds;
    if (known.status == AxisStatus::Found)
        updateDirection();
}

double AxisTracker::turnedDegrees() const
{
    return maxTurn - minTurn;
}

double AxisTracker::turnOf(const Recognition &frame) const
{
    if (!previous)
        return 0.0;
    return previousTurn +
           EarthView(frame, frame.pole).turnAgainst(EarthView(*previous, previous->pole));
}

bool AxisTracker::isOtherCamera(const Recognition &frame) const
{
    if (!previous)
        return false;
    return previous->width != frame.width || previous->height != frame.height ||
           previous->mirrored != frame.mirrored || previous->hemisphere != frame.hemisphere ||
           std::abs(frame.scale / previous->scale - 1.0) > scaleDifference;
}

/// Whether the field moved further than the turn about any axis near the frame explains.
bool AxisTracker::jumped(const Recognition &frame, double turn) const
{
    if (!previous)
        return false;
    const EarthView now = atCentre(frame);
    const EarthView then = atCentre(*previous);
    const double moved =
        std::hypot(now.linear().x - then.linear().x, now.linear().y - then.linear().y);
    const double turned = std::abs(turn - previousTurn) * astrometry::degree;
    const double noise = allowedSigmas * std::hypot(now.sigma(), then.sigma());
    return arcseconds(moved - farthestAxis * turned - noise) > 2.0 * allowedArcseconds;
}

std::optional<std::size_t> AxisTracker::placeOf(double turn) const
{
    for (std::size_t i = 0; i < kept.size(); ++i)
        if (std::abs(kept[i].turn - turn) < step)
            return i;
    return std::nullopt;
}

bool AxisTracker::isNewAngle(const Recognition &frame) const
{
    return !placeOf(turnOf(frame));
}

bool AxisTracker::wants(const Recognition &frame) const
{
    const auto place = placeOf(turnOf(frame));
    return !place || kept[*place].frames.size() < maxAtPlace;
}

bool AxisTracker::isEnough() const
{
    if (known.status != AxisStatus::Found)
        return false;
    // Two places agree on some axis whatever happened: there must be three well apart.
    const auto isApart = [](double from, double to) { return to - from >= checkingTurn; };
    const bool checked = std::any_of(kept.begin(), kept.end(), [&](const AnglePlace &one) {
        return isApart(minTurn, one.turn) && isApart(one.turn, maxTurn);
    });
    return checked && (turnedDegrees() >= enoughTurn || known.sigmaArcseconds < enoughSigma);
}

double AxisTracker::allowedDeparture(const Recognition &frame) const
{
    const double view = arcseconds(EarthView(frame, known.place).sigma());
    return allowedSigmas * std::hypot(view, known.sigmaArcseconds) + allowedArcseconds;
}

std::optional<double> AxisTracker::departure(const Recognition &frame) const
{
    if (known.status != AxisStatus::Found)
        return std::nullopt;
    const EarthView::Linear l = EarthView(frame, known.place).linear();
    return arcseconds(std::hypot(l.x - directionX, l.y - directionY));
}

void AxisTracker::updateDirection()
{
    directionX = directionY = 0.0;
    double number = 0.0;
    for (const AnglePlace &one : kept)
        for (const Recognition &frame : one.frames) {
            const EarthView::Linear l = EarthView(frame, known.place).linear();
            directionX += l.x;
            directionY += l.y;
            number += 1.0;
        }
    directionX /= number;
    directionY /= number;
}

/// Every second place joins the one before it: its frames count for the axis as before, only its
/// angle is free again.
void AxisTracker::thin()
{
    step *= 2.0;
    std::vector<AnglePlace> fewer;
    for (std::size_t i = 0; i < kept.size(); ++i) {
        if (i % 2 == 0) {
            fewer.push_back(std::move(kept[i]));
            continue;
        }
        AnglePlace &into = fewer.back();
        std::move(kept[i].frames.begin(), kept[i].frames.end(), std::back_inserter(into.frames));
        into.angles += kept[i].angles;
    }
    kept = std::move(fewer);
}

void AxisTracker::keep(const Recognition &frame, double turn)
{
    if (kept.size() == maxKept)
        thin();
    kept.push_back({{slim(frame)}, turn, 1});
    minTurn = std::min(minTurn, turn);
    maxTurn = std::max(maxTurn, turn);
}

AxisTracker::Event AxisTracker::startFrom(const Recognition &frame, Event event)
{
    reset();
    add(frame);
    return event;
}

/// Fits the axis. Frames that do not agree with the others are forgotten; if the last one is among
/// them, all the others are, since the camera is now as the last one shows.
AxisTracker::Event AxisTracker::solve()
{
    std::vector<Recognition> frames;
    for (const AnglePlace &one : kept)
        frames.push_back(one.frames.front());
    Axis axis = recognition::axisOfTurns(frames);
    if (axis.status == AxisStatus::Bumped ||
        (!axis.bumped.empty() && axis.bumped.back() + 1 == kept.size())) {
        const Recognition last = kept.back().frames.front();
        return startFrom(last, Event::Bumped);
    }
    Event event = Event::None;
    if (!axis.bumped.empty()) {
        std::vector<AnglePlace> agreed;
        for (std::size_t i = 0; i < kept.size(); ++i)
            if (std::find(axis.bumped.begin(), axis.bumped.end(), i) == axis.bumped.end())
                agreed.push_back(std::move(kept[i]));
        kept = std::move(agreed);
        minTurn = maxTurn = kept.front().turn;
        for (const AnglePlace &one : kept) {
            minTurn = std::min(minTurn, one.turn);
            maxTurn = std::max(maxTurn, one.turn);
        }
        event = Event::Bumped;
    }
    counted = axis.status == AxisStatus::Found ? improve(axis) : framesKept();
    known = std::move(axis);
    early = known.status == AxisStatus::TooLittleTurn ? guess() : std::nullopt;
    if (known.status == AxisStatus::Found)
        updateDirection();
    return event;
}

std::size_t AxisTracker::framesKept() const
{
    const auto sum = [](std::size_t frames, const AnglePlace &one) {
        return frames + one.frames.size();
    };
    return std::accumulate(kept.begin(), kept.end(), std::size_t{0}, sum);
}

/// By all frames of the places, but those that show the axis elsewhere than the first ones do.
/// @return how many frames the axis rests on
std::size_t AxisTracker::improve(Axis &axis) const
{
    std::vector<EarthView> views;
    double x = 0.0, y = 0.0;
    for (const AnglePlace &one : kept) {
        views.emplace_back(one.frames.front(), axis.place);
        x += views.back().linear().x / double(kept.size());
        y += views.back().linear().y / double(kept.size());
    }
    for (const AnglePlace &one : kept)
        for (std::size_t i = 1; i < one.frames.size(); ++i) {
            const EarthView view(one.frames[i], axis.place);
            const double off = arcseconds(std::hypot(view.linear().x - x, view.linear().y - y));
            if (off <= allowedSigmas * arcseconds(view.sigma()) + allowedArcseconds)
                views.push_back(view);
        }
    std::vector<std::size_t> all(views.size());
    std::iota(all.begin(), all.end(), std::size_t{0});
    const auto point = recognition::fixedPointOf(views, all);
    if (!point)
        return kept.size(); // the axis stays that of the first frames
    const auto sum = [](std::size_t angles, const AnglePlace &one) { return angles + one.angles; };
    const double angles = double(std::accumulate(kept.begin(), kept.end(), std::size_t{0}, sum));
    const double atPlace = std::max(double(views.size()) / angles, 1.0);
    const double widening = 1.0 + sharedAtPlace * (atPlace - 1.0);
    const recognition::Covariance &c = point->covariance;
    axis.place = point->pixel;
    axis.shared.clear();
    axis.covariance = {widening * c.xx, widening * c.xy, widening * c.yy};
    axis.rms = arcseconds(point->rms);
    axis.sigmaArcseconds = kept.front().frames.front().mapping.scaleAt(axis.place) *
                           std::sqrt(0.5 * (axis.covariance.xx + axis.covariance.yy));
    return views.size();
}

std::optional<Axis> AxisTracker::guess() const
{
    if (turnedDegrees() < minGuessedTurn)
        return std::nullopt;
    std::vector<EarthView> views;
    for (const AnglePlace &one : kept)
        views.emplace_back(one.frames.front(), kept.front().frames.front().pole);
    std::vector<std::size_t> all(views.size());
    std::iota(all.begin(), all.end(), std::size_t{0});
    const auto point = recognition::fixedPointOf(views, all);
    if (!point)
        return std::nullopt;
    Axis axis;
    axis.place = point->pixel;
    improve(axis);
    if (!(axis.sigmaArcseconds > 0.0 && axis.sigmaArcseconds < maxGuessedSigma))
        return std::nullopt;
    return axis;
}

AxisTracker::Event AxisTracker::add(const Recognition &frame)
{
    if (isOtherCamera(frame))
        return startFrom(frame, Event::OtherCamera);
    const double turn = turnOf(frame);
    const bool hasJumped = jumped(frame, turn);
    previous = slim(frame);
    previousTurn = turn;
    const auto off = departure(frame);
    const bool departed = hasJumped || (off && *off > allowedDeparture(frame));
    departures = departed || (departures > 0 && !off) ? departures + 1 : 0;
    if (departures >= departuresOfABump)
        return startFrom(frame, Event::Bumped);
    if (departures > 0)
        return Event::None;
    if (const auto place = placeOf(turn)) {
        if (kept[*place].frames.size() >= maxAtPlace)
            return Event::None;
        kept[*place].frames.push_back(slim(frame));
    } else {
        keep(frame, turn);
    }
    return solve();
}
} // namespace assistant
