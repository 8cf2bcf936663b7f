// SPDX-License-Identifier: MIT
// Which direction fixed to the Earth does a pixel show, and which pixel shows the same one always?
#pragma once

#include "recognition/recognise.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace recognition
{
/// The pixel that shows one direction in several frames.
struct FixedPoint {
    PixelPlace pixel;
    Covariance covariance; ///< pixels squared
    double x, y;           ///< the direction: components across the Earth's axis
    double rms;            ///< radians, of the frames' disagreement, both axes
    /// Of each frame: what its own error and the pixel's have in common, pixels squared. The
    /// direction that the pixel shows in that frame is as uncertain as the sum of the pixel's
    /// covariance, the frame's own and this.
    std::vector<Covariance> shared;
};

/// A frame, made linear about a pixel. Directions are their components x and y across the Earth's
/// axis: x on the meridian of Greenwich, y on that 90 degrees east.
class EarthView
{
public:
    EarthView(const Recognition &recognition, PixelPlace about);

    /// Turn of the camera about the Earth's axis since another frame, degrees, -180 to 180,
    /// positive westwards.
    double turnAgainst(const EarthView &other) const;
    /// One sigma of a direction by this frame's mapping, radians, one axis.
    double sigma() const { return error; }
    /// Of a direction, x and y, without what all frames have in common; radians squared.
    const Covariance &ownCovariance() const { return own; }
    /// Between the direction that the point's pixel shows here and the point's own, radians.
    double distance(const FixedPoint &point) const;

    PixelPlace about() const { return origin; }
    /// x and y of the pixel `about`, and their derivatives, radians a pixel.
    struct Linear {
        double x, y;
        double xByX, xByY, yByX, yByY;
    };
    const Linear &linear() const { return values; }
    /// The same frame about another pixel.
    EarthView movedTo(PixelPlace pixel) const { return EarthView(*recognition, pixel); }

private:
    struct Point {
        double x, y;
    };
    Point at(PixelPlace pixel) const;

    const Recognition *recognition; // outlives the view
    double rotation;                // Earth rotation angle, radians
    PixelPlace origin;
    Linear values;
    double error; // radians
    Covariance own;
};

/// By weighted least squares over the chosen frames; nothing if they do not fix a point.
std::optional<FixedPoint> fixedPointOf(const std::vector<EarthView> &views,
                                       const std::vector<std::size_t> &chosen);
} // namespace recognition
