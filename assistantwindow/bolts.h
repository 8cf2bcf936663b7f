// SPDX-License-Identifier: MIT
// Which way must each bolt move the axis?
#pragma once

#include "assistant/status.h"

#include <QString>

namespace assistantwindow
{
/// Where the axis must go; `Stay`: this bolt is good, `Unknown`: no valid number.
enum class Way { Unknown, Stay, Up, Down, East, West };

struct BoltWays {
    Way altitude = Way::Unknown;
    Way azimuth = Way::Unknown;
    /// The same for a good bolt too: which way what is left of its error goes; `Stay`: no error.
    Way altitudeSide = Way::Unknown;
    Way azimuthSide = Way::Unknown;
};

/// A bolt is good when its part of the error on the sky is below the goal's share of one axis
/// (goal / sqrt 2), so two good bolts mean an error below the goal.
/// @param latitude degrees; the azimuth is an angle about the vertical, on the sky it is less by
/// its cosine
BoltWays boltWays(const std::optional<assistant::ErrorFigures> &error, double latitude,
                  double goalArcseconds);

/// Direction of the arrow for someone who stands behind the mount and faces the pole: degrees,
/// 0 up, positive clockwise. Facing south, east is on the left.
double arrowDegrees(Way way, recognition::Hemisphere hemisphere);

/// A word that holds in both hemispheres: "up", "down", "east", "west"; "good" for Stay.
QString wayText(Way way);
} // namespace assistantwindow
