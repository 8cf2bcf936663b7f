// SPDX-License-Identifier: MIT
// The axis against the pole in the horizon's frame.
#include "recognition/mounterror.h"

#include <algorithm>
#include <cmath>

namespace recognition
{
namespace
{
using astrometry::Vector3;

struct Offset {
    double up, east; // radians
};

// Directions (east, north, up) of the pole, and of its way up along the vertical.
struct Pole {
    Vector3 direction, up;
};

Pole poleOf(const MountErrorOptions &options)
{
    const double latitude = options.site.latitude * astrometry::degree;
    const double northward = latitude < 0.0 ? -1.0 : 1.0;
    Vector3 pole = {0.0, northward * std::cos(latitude), std::abs(std::sin(latitude))};
    if (options.air && options.target == PoleTarget::Refracted)
        pole = astrometry::refracted(pole, *options.air);
    return {pole, {0.0, -northward * pole.z, std::abs(pole.y)}};
}

class AxisInHorizon
{
public:
    AxisInHorizon(const Recognition &recognition, const MountErrorOptions &mountOptions)
        : frame(recognition),
          options(mountOptions),
          horizon(astrometry::horizonFromCirs(mountOptions.site, recognition.utcSeconds)),
          pole(poleOf(mountOptions))
    {
    }

    // The whole angle, split along the pole's vertical and across it.
    Offset offsetOf(PixelPlace pixel) const
    {
        Vector3 axis = apply(horizon, frame.mapping.skyOf(pixel));
        // What a pixel of the axis shows comes from below it: the light was lifted on its way.
        // With an observer the mapping includes that already.
        if (options.air && !frame.observed)
            axis = astrometry::refracted(axis, *options.air);
        const double up = dot(axis, pole.up);
        const double east = axis.x;
        const double across = std::hypot(up, east);
        const double angle = angleBetween(axis, pole.direction);
        const double factor = across > 0.0 ? angle / across : 0.0;
        return {up * factor, east * factor};
    }

    double poleAltitude() const
    {
        return std::atan2(pole.direction.z, std::hypot(pole.direction.x, pole.direction.y));
    }

private:
    const Recognition &frame;
    const MountErrorOptions &options;
    astrometry::Matrix3 horizon;
    Pole pole;
};

double propagated(double byX, double byY, const Covariance &c)
{
    return std::sqrt(std::max(byX * byX * c.xx + 2.0 * byX * byY * c.xy + byY * byY * c.yy, 0.0));
}

// Of the axis' place among the frame's stars, pixels squared. A frame by which the axis was found
// is not independent of it.
Covariance covarianceOf(const Recognition &frame, const Axis &axis)
{
    const Covariance mapped = frame.mapping.covarianceAt(axis.place);
    const Covariance shared = sharedError(axis, frame);
    return {axis.covariance.xx + mapped.xx + shared.xx, axis.covariance.xy + mapped.xy + shared.xy,
            axis.covariance.yy + mapped.yy + shared.yy};
}

// Of `up` (xx) and `east` (yy), arcseconds squared.
Covariance propagated(const Offset &byX, const Offset &byY, const Covariance &c)
{
    const double up = propagated(byX.up, byY.up, c) / astrometry::arcsecond;
    const double east = propagated(byX.east, byY.east, c) / astrometry::arcsecond;
    const double both = byX.up * byX.east * c.xx + (byX.up * byY.east + byY.up * byX.east) * c.xy +
                        byY.up * byY.east * c.yy;
    return {up * up, both / (astrometry::arcsecond * astrometry::arcsecond), east * east};
}
} // namespace

std::optional<MountError> mountError(const Recognition &frame, const Axis &axis,
                                     const MountErrorOptions &options)
{
    const double latitude = options.site.latitude;
    const bool southern = frame.hemisphere == Hemisphere::South;
    if (frame.status != RecognitionStatus::Recognised || axis.status != AxisStatus::Found ||
        !(std::abs(latitude) <= 90.0) || (latitude < 0.0) != southern)
        return std::nullopt;
    const AxisInHorizon view(frame, options);
    const Offset offset = view.offsetOf(axis.place);
    const Covariance c = covarianceOf(frame, axis);
    constexpr double step = 0.5; // pixels
    const Offset right = view.offsetOf({axis.place.x + step, axis.place.y});
    const Offset left = view.offsetOf({axis.place.x - step, axis.place.y});
    const Offset below = view.offsetOf({axis.place.x, axis.place.y + step});
    const Offset above = view.offsetOf({axis.place.x, axis.place.y - step});
    const Offset byX = {(right.up - left.up) / (2.0 * step),
                        (right.east - left.east) / (2.0 * step)};
    const Offset byY = {(below.up - above.up) / (2.0 * step),
                        (below.east - above.east) / (2.0 * step)};
    const double total = std::hypot(offset.up, offset.east);
    // Along the offset; any direction will do where there is none.
    const double u = total > 0.0 ? offset.up / total : 1.0;
    const double e = total > 0.0 ? offset.east / total : 0.0;
    const auto measured = [&c](double value, double x, double y) {
        return Measured{value / astrometry::arcsecond, propagated(x, y, c) / astrometry::arcsecond};
    };
    return MountError{measured(total, u * byX.up + e * byX.east, u * byY.up + e * byY.east),
                      measured(offset.up, byX.up, byY.up),
                      measured(offset.east, byX.east, byY.east), propagated(byX, byY, c),
                      view.poleAltitude()};
}
} // namespace recognition
