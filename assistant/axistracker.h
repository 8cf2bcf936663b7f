// SPDX-License-Identifier: MIT
// Where does the RA axis lie in the picture, from the frames seen so far, and was anything bumped?
#pragma once

#include "recognition/axis.h"
#include "recognition/recognise.h"

#include <optional>
#include <vector>

namespace assistant
{
/// With so much turn the axis is known well enough in any case, degrees.
inline constexpr double enoughTurn = 30.0;
/// An axis known so well is enough, arcseconds, after `recognition::minTurn`.
inline constexpr double enoughSigma = 5.0;
/// Degrees. A third angle of the axis this far from two others shows whether all three agree.
inline constexpr double checkingTurn = 5.0;

/// Keeps the frames at one place for each step of the axis' angle. The steps are of one degree and
/// double whenever the places become too many; then two places become one with the frames of both,
/// so that the memory grows with the logarithm of the turn and the axis gets no worse. Whether
/// places agree is decided by the first frame of each; where the axis is, by all that are kept. Not
/// for two threads at a time.
class AxisTracker
{
public:
    static constexpr std::size_t maxKept = 40; ///< places
    /// Frames at one place, or those of both if two became one. By `sharedAtPlace` the variance is
    /// 0.40 of that of one frame; twenty would leave 0.24, but each costs a search for stars and a
    /// fit.
    static constexpr std::size_t maxAtPlace = 4;
    /// Their stars fall on the same pixels, so that they share this part of their errors' variance
    /// (docs/assistant.md); the claim is widened by it.
    static constexpr double sharedAtPlace = 0.2;

    enum class Event {
        None,
        Bumped,     ///< tripod, bolts or camera moved: what does not fit was forgotten
        OtherCamera ///< size, mirroring, hemisphere or scale changed: all was forgotten
    };

    /// Takes a recognised frame.
    Event add(const recognition::Recognition &frame);
    /// Whether `add` would keep the frame: only such a frame must be sharp.
    bool wants(const recognition::Recognition &frame) const;
    /// Whether it would be the first of its angle.
    bool isNewAngle(const recognition::Recognition &frame) const;
    void reset();
    /// The clock was set: what was kept gets the new time.
    void shiftClock(double seconds);

    /// Status Found, or why it is not known.
    const recognition::Axis &axis() const { return known; }
    /// Where the axis seems to be after less turn than an axis needs. For display only: over a
    /// short turn, a tripod that yields looks like another axis.
    const std::optional<recognition::Axis> &earlyAxis() const { return early; }
    double turnedDegrees() const;
    /// That the axis rests on, or, before it is known, that are kept for it.
    std::size_t frames() const { return counted; }
    bool isEnough() const;
    /// Arcseconds between the direction that the axis' pixel shows in this frame and the one that
    /// it showed while the axis was measured; nothing before the axis is known.
    std::optional<double> departure(const recognition::Recognition &frame) const;
    /// What `departure` may be if nothing moved, arcseconds.
    double allowedDeparture(const recognition::Recognition &frame) const;

private:
    struct AnglePlace {
        std::vector<recognition::Recognition> frames; // never empty
        double turn;                                  // of the first, degrees since the first place
        std::size_t angles;                           // places that became this one
    };

    double turnOf(const recognition::Recognition &frame) const;
    bool isOtherCamera(const recognition::Recognition &frame) const;
    bool jumped(const recognition::Recognition &frame, double turn) const;
    std::optional<std::size_t> placeOf(double turn) const; // index into `kept`
    void keep(const recognition::Recognition &frame, double turn);
    void thin();
    Event solve();
    std::size_t framesKept() const;
    std::size_t improve(recognition::Axis &axis) const;
    std::optional<recognition::Axis> guess() const;
    Event startFrom(const recognition::Recognition &frame, Event event);
    void updateDirection();

    std::vector<AnglePlace> kept;
    std::optional<recognition::Recognition> previous;
    double previousTurn = 0.0;
    double minTurn = 0.0, maxTurn = 0.0;
    double step = 1.0; ///< degrees
    std::size_t counted = 0;
    int departures = 0; ///< in a row
    recognition::Axis known;
    std::optional<recognition::Axis> early;    ///< only while `known` is not found
    double directionX = 0.0, directionY = 0.0; ///< of the axis, across the Earth's axis
};
} // namespace assistant
