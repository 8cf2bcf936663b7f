// SPDX-License-Identifier: MIT
// What does a hand on the virtual mount change in the sky's state?
#pragma once

#include "virtualcamera/skyclock.h"
#include "virtualcamera/skystate.h"

#include <array>
#include <optional>

namespace virtualmount
{
using virtualsky::Moment;
using virtualsky::SkyState;

/// Degrees a second of the RA axis under a hand.
constexpr double turnRate = 20.0;
/// What the buttons turn the RA axis by, degrees, positive as the mount tracks (westwards).
constexpr std::array<double, 6> axisTurns = {-45.0, -30.0, -15.0, 15.0, 30.0, 45.0};
/// What a press turns a bolt by, degrees.
constexpr double coarseStep = 5.0 / 60.0;
constexpr double fineStep = 20.0 / 3600.0;
/// Degrees that one turn of a bolt's knob moves the axis.
constexpr double degreesPerTurn = 20.0 / 60.0;
/// Seconds that slow USB adds to every frame.
constexpr double slowUsbSeconds = 2.0;

/// The same direction between -180 (left out) and 180 degrees, to 1e-7 degree so that steps there
/// and back meet again. 0 for an angle that is no finite number.
double wrapped(double degrees);

/// A turn of the RA axis under way: what is left of it, degrees.
class AxisMotion
{
public:
    void turnBy(double degrees) { left += degrees; } ///< on top of what is left
    void turnInstead(double degrees) { left = degrees; }
    bool isMoving() const { return left != 0.0; }
    double remaining() const { return left; }
    /// The part of the turn that falls into the next `seconds` (0 or more); it is no longer left.
    /// A longer pause counts as 0.25 s: the axis must not leap after the program was held up.
    double advance(double seconds);

private:
    double left = 0.0;
};

/// Degrees that the axis has followed the sky since the tracked turn was 0; 0 without tracking.
double trackedTurn(const Moment &moment);
/// Where the axis stands, degrees, wrapped: its own angle and the tracked turn.
double axisAngle(const Moment &moment);

void turnAxis(SkyState &state, double degrees);
/// Adds to a bolt's member within the sky file's range of -20 to 20 degrees.
void turnBolt(SkyState &state, double SkyState::*bolt, double degrees);
/// Tracking begins at the angle where the axis stands and ends where it has come to.
/// @param moment the state as it is, at the time of the change
void setTracking(SkyState &state, const Moment &moment, bool on);

enum class TimeMode { Now, Running, Still };
TimeMode timeMode(const SkyState &state);
/// The axis stays where it has come to by tracking, and tracks on from there.
/// @param systemSeconds the computer's own UTC since 1970
/// @param date seconds since 1970 UTC; not looked at for `Now`
void setTime(SkyState &state, const Moment &moment, double systemSeconds, TimeMode mode,
             double date);

/// The part of the light that passing clouds hold back after `seconds`, 0 to 0.9, in steps of 0.01:
/// a clear sky at first, then clouds that come and go, never twice the same for some minutes.
double passingClouds(double seconds);

/// Whether the mount stands elsewhere, so that what was said about its error says nothing now.
bool movedSite(const SkyState &before, const SkyState &after);
} // namespace virtualmount
