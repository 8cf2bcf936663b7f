// SPDX-License-Identifier: MIT
// How did the error go over the last minutes?
#pragma once

#include "assistant/status.h"

#include <deque>
#include <optional>

namespace assistant
{
/// For the plot: at most `longest` seconds, at most one point in `spacing` seconds.
class History
{
public:
    static constexpr double longest = 600.0;
    static constexpr double spacing = 0.5;

    struct Point {
        double seconds;                          ///< of the clock that `add` is given
        double total;                            ///< arcseconds
        std::optional<double> altitude, azimuth; ///< arcseconds
    };

    /// Adds nothing for a frame without figures. A clock that was set back begins again.
    void add(const Status &status, double seconds);
    void clear() { recorded.clear(); }
    /// Oldest first.
    const std::deque<Point> &points() const { return recorded; }

private:
    std::deque<Point> recorded;
};
} // namespace assistant
