// SPDX-License-Identifier: MIT
// The user's actions, each applied to a given state.
#include "virtualmount/mountmodel.h"

#include "virtualcamera/mount.h"
#include "virtualcamera/skykeys.h"
#include "virtualcamera/vector3.h"

#include <algorithm>
#include <cmath>

namespace virtualmount
{
namespace
{
using virtualsky::boltLimit;
using virtualsky::pi;

constexpr double maxPause = 0.25; // seconds
constexpr double grains = 1e7;    // a degree; 0.4 milliarcseconds each

double grained(double degrees)
{
    return std::round(degrees * grains) / grains;
}

// Adds the tracked turn to the axis' own angle and restarts tracking.
void settleTracking(SkyState &state, const Moment &moment)
{
    if (state.tracking)
        turnAxis(state, trackedTurn(moment));
    state.trackingSince.reset();
}

// With the computer's time the start of tracking is fixed, whoever reads the file and when. A fixed
// date counts from when the camera reads it, so the camera determines the start.
void beginTracking(SkyState &state, double utcSeconds)
{
    if (state.tracking && !state.date)
        state.trackingSince = utcSeconds;
}
} // namespace

double wrapped(double degrees)
{
    if (!std::isfinite(degrees))
        return 0.0;
    const double turned = grained(std::remainder(degrees, 360.0));
    return turned <= -180.0 ? 180.0 : turned + 0.0; // no -0
}

double AxisMotion::advance(double seconds)
{
    const double most = turnRate * std::clamp(seconds, 0.0, maxPause);
    if (std::abs(left) <= most) {
        const double last = left;
        left = 0.0;
        return last;
    }
    const double step = std::copysign(most, left);
    left -= step;
    return step;
}

double trackedTurn(const Moment &moment)
{
    return 360.0 * virtualsky::skyTurnsPerSecond *
           virtualsky::trackedSeconds(moment.state, moment.utcSeconds);
}

double axisAngle(const Moment &moment)
{
    return wrapped(moment.state.raAngle + trackedTurn(moment));
}

void turnAxis(SkyState &state, double degrees)
{
    state.raAngle = wrapped(state.raAngle + degrees);
}

void turnBolt(SkyState &state, double SkyState::*bolt, double degrees)
{
    const double turned = grained(state.*bolt + degrees);
    state.*bolt = std::clamp(turned, -boltLimit, boltLimit) + 0.0;
}

void setTracking(SkyState &state, const Moment &moment, bool on)
{
    if (state.tracking == on)
        return;
    settleTracking(state, moment);
    state.tracking = on;
    beginTracking(state, moment.utcSeconds);
}

TimeMode timeMode(const SkyState &state)
{
    if (!state.date)
        return TimeMode::Now;
    return state.running ? TimeMode::Running : TimeMode::Still;
}

void setTime(SkyState &state, const Moment &moment, double systemSeconds, TimeMode mode,
             double date)
{
    settleTracking(state, moment);
    state.running = mode != TimeMode::Still;
    if (mode == TimeMode::Now)
        state.date.reset();
    else
        state.date = date;
    beginTracking(state, systemSeconds);
}

double passingClouds(double seconds)
{
    // Two periods that coincide every five minutes; values below the threshold mean clear sky.
    const double bank = std::sin(2.0 * pi * seconds / 60.0);
    const double wisp = std::sin(2.0 * pi * seconds / 25.0);
    const double thickness = 0.7 * bank + 0.3 * wisp;
    return std::round(90.0 * std::clamp(thickness, 0.0, 1.0)) / 100.0;
}

bool movedSite(const SkyState &before, const SkyState &after)
{
    return before.latitude != after.latitude || before.longitude != after.longitude;
}
} // namespace virtualmount
