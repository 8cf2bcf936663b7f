// SPDX-License-Identifier: MIT
// Does the camera still turn about the pixel that was measured as the axis?
#pragma once

#include "recognition/axis.h"
#include "recognition/recognise.h"

#include <optional>
#include <vector>

namespace assistant
{
/// While the bolts are turned, the axis' own direction changes, and no frame alone tells a slipped
/// camera from a turned bolt. When the RA axis turns, the pixels themselves tell about which of
/// them the picture turns. A movement of the field without a turn counts as the bolts'. Not for two
/// threads at a time.
class SlipWatch
{
public:
    /// Degrees of turn from which a slip is looked for.
    static constexpr double minTurn = 5.0;
    static constexpr std::size_t maxKept = 40;

    /// Takes a recognised frame of the time in which the bolts are turned.
    /// @param axis as it was measured
    /// @return whether the frames of the last turn agree on another axis
    bool hasSlipped(const recognition::Recognition &frame, const recognition::Axis &axis);
    void reset();
    void shiftClock(double seconds);

private:
    bool fieldMovedAlone(const recognition::Recognition &frame, recognition::PixelPlace at) const;
    double turned() const;
    bool disagrees(const recognition::Axis &axis) const;

    struct Kept {
        recognition::Recognition frame;
        double turn; ///< degrees
    };
    std::vector<Kept> kept; // of the turn that is under way, the last one renewed while at rest
};
} // namespace assistant
