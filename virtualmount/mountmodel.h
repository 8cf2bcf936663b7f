// SPDX-License-Identifier: MIT
// How do the virtual mount's controls change the sky's state?
#pragma once

#include "virtualcamera/skyclock.h"
#include "virtualcamera/skystate.h"

#include <array>
#include <optional>

namespace virtualmount
{
using virtualsky::Moment;
using virtualsky::SkyState;

/// Speed of the RA axis when turned by hand, degrees per second.
constexpr double turnRate = 20.0;
/// Turns of the RA axis by the buttons, degrees, positive as the mount tracks (westwards).
constexpr std::array<double, 6> axisTurns = {-45.0, -30.0, -15.0, 15.0, 30.0, 45.0};
/// Turn of a bolt per button press, degrees.
constexpr double coarseStep = 5.0 / 60.0;
constexpr double fineStep = 20.0 / 3600.0;
/// Axis movement for one turn of a bolt's knob, degrees.
constexpr double degreesPerTurn = 20.0 / 60.0;
/// Seconds that slow USB adds to each frame.
constexpr double slowUsbSeconds = 2.0;

/// The same direction in (-180, 180] degrees, rounded to 1e-7 degree so that steps forth and back
/// cancel exactly. 0 for an angle that is not finite.
double wrapped(double degrees);

/// A turn of the RA axis in progress: what remains of it, degrees.
class AxisMotion
{
public:
    void turnBy(double degrees) { left += degrees; } ///< added to what remains
    void turnInstead(double degrees) { left = degrees; }
    bool isMoving() const { return left != 0.0; }
    double remaining() const { return left; }
    /// The part of the turn for the next `seconds` (0 or more); it is subtracted from what remains.
    /// A longer pause counts as 0.25 s: the axis must not jump after the program was blocked.
    double advance(double seconds);

private:
    double left = 0.0;
};

/// Degrees that the axis has tracked since the tracked turn was 0; 0 without tracking.
double trackedTurn(const Moment &moment);
/// Angle of the axis, degrees, wrapped: its own angle plus the tracked turn.
double axisAngle(const Moment &moment);

void turnAxis(SkyState &state, double degrees);
/// Turns a bolt within the sky file's range of -20 to 20 degrees.
void turnBolt(SkyState &state, double SkyState::*bolt, double degrees);
/// Tracking starts at the current angle of the axis; when it ends, the axis keeps its angle.
/// @param moment the current state, at the time of the change
void setTracking(SkyState &state, const Moment &moment, bool on);

enum class TimeMode { Now, Running, Still };
TimeMode timeMode(const SkyState &state);
/// The axis keeps the angle that tracking has reached and continues tracking from there.
/// @param systemSeconds the computer's own UTC since 1970
/// @param date seconds since 1970 UTC; ignored for `Now`
void setTime(SkyState &state, const Moment &moment, double systemSeconds, TimeMode mode,
             double date);

/// Fraction of the light that passing clouds block after `seconds`, 0 to 0.9 in steps of 0.01: a
/// clear sky at first, then clouds that come and go without repeating for some minutes.
double passingClouds(double seconds);

/// Whether the site has changed, so that the displayed error no longer applies.
bool movedSite(const SkyState &before, const SkyState &after);
} // namespace virtualmount
