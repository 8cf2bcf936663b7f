// SPDX-License-Identifier: MIT
// Chooses frames, fits the axis, and compares each frame with it.
#include "assistant/axistracker.h"

#include "recognition/earthview.h"

#include <algorithm>
#include <cmath>

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
    for (Kept &one : kept)
        one.frame.utcSeconds += seconds;
    if (previous)
        previous->utcSeconds += seconds;
    if (known.status == AxisStatus::Found)
        updateDirection();
}

double AxisTracker::turnedDegrees() const
{
    return greatestTurn - leastTurn;
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

bool AxisTracker::hasAngle(double turn) const
{
    return std::any_of(kept.begin(), kept.end(),
                       [&](const Kept &one) { return std::abs(one.turn - turn) < step; });
}

bool AxisTracker::isNewAngle(const Recognition &frame) const
{
    return !hasAngle(turnOf(frame));
}

bool AxisTracker::isEnough() const
{
    if (known.status != AxisStatus::Found)
        return false;
    // Two places agree on some axis whatever happened: there must be three well apart.
    const auto isApart = [](double from, double to) { return to - from >= checkingTurn; };
    const bool checked = std::any_of(kept.begin(), kept.end(), [&](const Kept &one) {
        return isApart(leastTurn, one.turn) && isApart(one.turn, greatestTurn);
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
    for (const Kept &one : kept) {
        const EarthView::Linear l = EarthView(one.frame, known.place).linear();
        directionX += l.x / double(kept.size());
        directionY += l.y / double(kept.size());
    }
}

/// Every second frame makes room; the angles between them count no longer.
void AxisTracker::thin()
{
    step *= 2.0;
    std::vector<Kept> fewer;
    for (std::size_t i = 0; i < kept.size(); i += 2)
        fewer.push_back(std::move(kept[i]));
    kept = std::move(fewer);
}

void AxisTracker::keep(const Recognition &frame, double turn)
{
    if (kept.size() == mostKept)
        thin();
    kept.push_back({slim(frame), turn});
    leastTurn = std::min(leastTurn, turn);
    greatestTurn = std::max(greatestTurn, turn);
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
    for (const Kept &one : kept)
        frames.push_back(one.frame);
    Axis axis = recognition::axisOfTurns(frames);
    if (axis.status == AxisStatus::Bumped ||
        (!axis.bumped.empty() && axis.bumped.back() + 1 == kept.size())) {
        const Recognition last = kept.back().frame;
        return startFrom(last, Event::Bumped);
    }
    Event event = Event::None;
    if (!axis.bumped.empty()) {
        std::vector<Kept> agreed;
        for (std::size_t i = 0; i < kept.size(); ++i)
            if (std::find(axis.bumped.begin(), axis.bumped.end(), i) == axis.bumped.end())
                agreed.push_back(std::move(kept[i]));
        kept = std::move(agreed);
        leastTurn = greatestTurn = kept.front().turn;
        for (const Kept &one : kept) {
            leastTurn = std::min(leastTurn, one.turn);
            greatestTurn = std::max(greatestTurn, one.turn);
        }
        event = Event::Bumped;
    }
    known = std::move(axis);
    if (known.status == AxisStatus::Found)
        updateDirection();
    return event;
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
    ++counted;
    if (hasAngle(turn))
        return Event::None;
    keep(frame, turn);
    return solve();
}
} // namespace assistant
