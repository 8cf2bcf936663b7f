// SPDX-License-Identifier: MIT
// How does the live error become steady without lagging behind the bolts?
#pragma once

#include "assistant/errorfigures.h"

#include <cstddef>
#include <deque>

namespace assistant
{
/// The mean over the last frames as long as the axis stays where it is: at most `most` frames of at
/// most `longest` seconds. A frame that differs from the mean by more than its own error allows
/// begins again; a drift leaves only the newest frames, so many that their mean hardly lags. The
/// claimed error falls with the square root of the number of frames, counted up to `independent`,
/// and never below `floor`: the stars' pixels, and with them a part of the errors, are the same in
/// all frames. The mean's lag behind the newest frame is added, whether a bolt or noise causes the
/// drift.
class SteadyFigures
{
public:
    static constexpr std::size_t most = 10;
    static constexpr double longest = 3.0; // seconds
    static constexpr std::size_t independent = 4;
    static constexpr double floor = 0.2; ///< arcseconds, each direction

    FrameError add(const FrameError &error, double steadySeconds);
    void reset() { recent.clear(); }

private:
    struct Sample {
        FrameError error;
        double seconds;
    };
    /// How fast the axis moves, arcseconds a second, and the rates' variances.
    struct Drift {
        double x = 0.0, y = 0.0;
        double xx = 0.0, yy = 0.0;
    };
    bool hasMoved(const FrameError &error) const;
    Drift drift() const;
    std::size_t usable(const Drift &by) const; ///< newest frames
    double meanAge(std::size_t number) const;  ///< seconds
    FrameError mean(std::size_t number) const;

    std::deque<Sample> recent;
};
} // namespace assistant
