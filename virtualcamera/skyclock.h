// SPDX-License-Identifier: MIT
// What time is it in the sky?
#pragma once

#include <optional>

#include "virtualcamera/skystate.h"

namespace virtualsky
{
/// A fully determined state, and its time.
struct Moment {
    SkyState state; ///< trackingSince is set if the mount tracks
    double utcSeconds;
};

/// Stores when a date was first read and when tracking began.
class SkyClock
{
public:
    /// @param systemSeconds the computer's own UTC since 1970
    Moment at(const SkyState &state, double systemSeconds);

private:
    std::optional<double> date;
    bool running = true;
    double dateRead = 0.0;               // system time
    std::optional<double> trackingBegan; // sky time
};
} // namespace virtualsky
