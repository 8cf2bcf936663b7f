// SPDX-License-Identifier: MIT
// Along which lines of the picture does each bolt move the axis to the pole?
#pragma once

#include "assistant/status.h"
#include "astrometry/places.h"

#include <QLineF>
#include <optional>

namespace assistantwindow
{
/// The way from the axis to the pole in two legs, frame pixels: along the vertical by the altitude
/// bolt, then level by the azimuth bolt.
struct BoltLegs {
    recognition::PixelPlace axis, corner, pole;
};

/// Nothing unless altitude and azimuth are known.
std::optional<BoltLegs> boltLegs(const assistant::Status &status,
                                 const std::optional<astrometry::Site> &site);

/// How a leg is drawn, widget pixels: a short one as an axis that only shows its direction, one
/// that is almost nothing not at all.
QLineF shownLeg(const QLineF &leg);
} // namespace assistantwindow
