// SPDX-License-Identifier: MIT
// By how much did the axis miss the pole when the alignment began, as the present settings count?
#pragma once

#include "assistant/settings.h"
#include "assistant/status.h"

#include <optional>
#include <vector>

namespace assistant
{
/// The first frame that gave a figure, and the axis' pixel then. The direction that this pixel
/// shows in that frame is where the axis pointed at first; another site, pole or air changes only
/// its computed distance from the pole. Not for two threads at a time.
class Beginning
{
public:
    bool isKnown() const { return began.has_value(); }
    /// The error by the settings that were given last; absent until `take`.
    const std::optional<ErrorFigures> &error() const { return figures; }

    /// @param stars those that `frame.matched` indexes
    void take(const recognition::Recognition &frame,
              const std::vector<recognition::DetectedStar> &stars, const recognition::Axis &axis,
              const Settings &settings);
    /// The frame is recognised again as the new site and air refract its stars.
    void setSettings(const Settings &settings);
    /// The same axis, measured better; ignored after `fixAxis`.
    void improveAxis(const recognition::Axis &axis);
    /// The axis is measured again: where it is then in the picture says nothing of the first frame.
    void fixAxis() { mayImprove = false; }
    /// The clock was set: the frame was taken at another time than it said.
    void shiftClock(double seconds);
    void reset() { *this = Beginning(); }

private:
    struct First {
        recognition::Recognition frame;
        std::vector<recognition::DetectedStar> stars; // the matched ones, brightest first
        recognition::Axis axis;
    };
    void recogniseAgain();
    void measure();

    std::optional<First> began;
    bool mayImprove = false;
    Settings settings;
    std::optional<ErrorFigures> figures;
};
} // namespace assistant
