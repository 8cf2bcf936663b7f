// SPDX-License-Identifier: MIT
// The mount's error of one frame, by recognition/mounterror.h or, without a site, by the sky alone.
#include "assistant/errorfigures.h"

#include "recognition/earthview.h"
#include "recognition/fieldstars.h"

#include <algorithm>
#include <cmath>

namespace assistant
{
namespace
{
using astrometry::Vector3;
using recognition::Axis;
using recognition::Covariance;
using recognition::Measured;
using recognition::Recognition;

constexpr double humidity = 0.5; // its effect on refraction is below 1 percent

bool isSouthern(const astrometry::Site &site)
{
    return site.latitude < 0.0;
}

std::optional<FrameError> withSite(const Recognition &frame, const Axis &axis,
                                   const Settings &settings)
{
    const recognition::MountErrorOptions options = {*settings.site, airOf(settings),
                                                    settings.target};
    // The parts are kept apart, as for frames that come after those that the axis was found by.
    Axis independent = axis;
    independent.shared.clear();
    const auto whole = recognition::mountError(frame, independent, options);
    Axis exact = independent;
    exact.covariance = {};
    const auto byFrame = recognition::mountError(frame, exact, options);
    if (!whole || !byFrame)
        return std::nullopt;
    const Covariance &all = whole->covariance, &part = byFrame->covariance;
    FrameError error;
    error.hasSite = true;
    error.x = whole->altitude.arcseconds;
    error.y = whole->azimuth.arcseconds;
    error.frame = part;
    error.axis = {std::max(all.xx - part.xx, 0.0), all.xy - part.xy,
                  std::max(all.yy - part.yy, 0.0)};
    error.poleAltitude = whole->poleAltitude;
    return error;
}

// Of byX x + byY y, in the unit of x and y.
double propagated(double byX, double byY, const Covariance &c)
{
    return std::sqrt(std::max(byX * byX * c.xx + 2.0 * byX * byY * c.xy + byY * byY * c.yy, 0.0));
}

// Of the directions' components, arcseconds squared, by that of the pixel.
Covariance acrossEarthsAxis(const recognition::EarthView::Linear &l, const Covariance &c)
{
    constexpr double unit = astrometry::arcsecond * astrometry::arcsecond;
    const auto product = [&c](double aByX, double aByY, double bByX, double bByY) {
        return (aByX * bByX * c.xx + (aByX * bByY + aByY * bByX) * c.xy + aByY * bByY * c.yy) /
               unit;
    };
    return {product(l.xByX, l.xByY, l.xByX, l.xByY), product(l.xByX, l.xByY, l.yByX, l.yByY),
            product(l.yByX, l.yByY, l.yByX, l.yByY)};
}

// Components across the Earth's axis are as good as angles: their sine is made an angle.
FrameError withoutSite(const Recognition &frame, const Axis &axis)
{
    const recognition::EarthView::Linear l = recognition::EarthView(frame, axis.place).linear();
    const double sine = std::hypot(l.x, l.y);
    const double stretch = sine > 0.0 ? std::asin(std::min(sine, 1.0)) / sine : 1.0;
    FrameError error;
    error.x = l.x * stretch / astrometry::arcsecond;
    error.y = l.y * stretch / astrometry::arcsecond;
    error.axis = acrossEarthsAxis(l, axis.covariance);
    error.frame = acrossEarthsAxis(l, frame.mapping.covarianceAt(axis.place));
    return error;
}

// Arcseconds: what the bolts turn. Azimuth is positive eastwards on either hemisphere, since it is
// measured from the pole's side of the meridian.
struct Bolts {
    double altitude, azimuth;
    double zenithSine; // of the axis' distance from the zenith
};

Bolts boltsOf(double up, double east, double poleAltitude)
{
    const double total = std::hypot(up, east);
    const double sine = std::sin(total * astrometry::arcsecond);
    const double upward = total > 0.0 ? sine * up / total : 0.0;
    const double eastward = total > 0.0 ? sine * east / total : 0.0;
    const double along = std::cos(total * astrometry::arcsecond);
    const double c = std::cos(poleAltitude), s = std::sin(poleAltitude);
    const double poleward = along * c - upward * s;
    const double level = std::hypot(eastward, poleward);
    const double altitude = std::atan2(along * s + upward * c, level) - poleAltitude;
    return {altitude / astrometry::arcsecond,
            std::atan2(eastward, poleward) / astrometry::arcsecond, level};
}

// Fills altitude and azimuth by the error's x and y and their covariance.
void addBolts(const FrameError &error, const Covariance &c, double latitude, ErrorFigures &figures)
{
    const auto at = [&error](double x, double y) {
        return boltsOf(error.x + x, error.y + y, error.poleAltitude);
    };
    constexpr double step = 0.5; // arcseconds
    constexpr double nearZenith = 60.0 * astrometry::arcsecond;
    const Bolts bolts = at(0.0, 0.0);
    const Bolts above = at(step, 0.0), below = at(-step, 0.0);
    const Bolts east = at(0.0, step), west = at(0.0, -step);
    figures.altitude =
        Measured{bolts.altitude, propagated((above.altitude - below.altitude) / (2.0 * step),
                                            (east.altitude - west.altitude) / (2.0 * step), c)};
    if (90.0 - std::abs(latitude) < minPolarDistance || bolts.zenithSine < nearZenith)
        return;
    const auto slope = [](double difference) {
        return std::remainder(difference, 1296000.0) / (2.0 * step);
    };
    figures.azimuth = Measured{bolts.azimuth, propagated(slope(above.azimuth - below.azimuth),
                                                         slope(east.azimuth - west.azimuth), c)};
}
} // namespace

astrometry::RefractionConstants airOf(const Settings &settings)
{
    return astrometry::refractionConstants(settings.pressure, settings.temperature, humidity);
}

std::optional<recognition::Observer> observerOf(const Settings &settings,
                                                recognition::Hemisphere hemisphere)
{
    if (!settings.site ||
        isSouthern(*settings.site) != (hemisphere == recognition::Hemisphere::South))
        return std::nullopt;
    return recognition::Observer{*settings.site, airOf(settings)};
}

bool isTrustworthy(const Recognition &followed)
{
    constexpr std::size_t minMatched = 8;
    constexpr double maxResiduals = 0.35; // pixels
    return followed.status == recognition::RecognitionStatus::Recognised &&
           followed.matched.size() >= minMatched && followed.rms <= maxResiduals * followed.scale;
}

std::optional<PolePlace> poleOf(const Recognition &frame, const Settings &settings)
{
    if (frame.status != recognition::RecognitionStatus::Recognised)
        return std::nullopt;
    const auto observer = observerOf(settings, frame.hemisphere);
    if (!frame.observed || !observer || settings.target == recognition::PoleTarget::True)
        return PolePlace{frame.pole, frame.poleCovariance};
    recognition::RecognitionOptions options;
    options.utcSeconds = frame.utcSeconds;
    options.observer = observer;
    const Vector3 pole = {0.0, 0.0,
                          frame.hemisphere == recognition::Hemisphere::South ? -1.0 : 1.0};
    const auto place = frame.mapping.pixelOf(recognition::asSeen(pole, options));
    if (!place)
        return std::nullopt;
    return PolePlace{*place, frame.mapping.covarianceAt(*place)};
}

std::optional<FrameError> frameErrorOf(const Recognition &frame, const Axis &axis,
                                       const Settings &settings)
{
    if (frame.status != recognition::RecognitionStatus::Recognised ||
        axis.status != recognition::AxisStatus::Found)
        return std::nullopt;
    return observerOf(settings, frame.hemisphere) ? withSite(frame, axis, settings)
                                                  : withoutSite(frame, axis);
}

ErrorFigures figuresOf(const FrameError &error, const std::optional<astrometry::Site> &site)
{
    const double total = std::hypot(error.x, error.y);
    const double x = total > 0.0 ? error.x / total : std::sqrt(0.5);
    const double y = total > 0.0 ? error.y / total : std::sqrt(0.5);
    const Covariance c = {error.axis.xx + error.frame.xx, error.axis.xy + error.frame.xy,
                          error.axis.yy + error.frame.yy};
    ErrorFigures figures;
    // Near the pole the part across the offset adds to the length as much as the one along it.
    const double along = propagated(x, y, c);
    const double across = propagated(-y, x, c);
    const double nearness = across > 0.0 ? across / std::hypot(total, across) : 0.0;
    figures.total = {total, std::hypot(along, across * nearness)};
    if (error.hasSite && site)
        addBolts(error, c, site->latitude, figures);
    return figures;
}
} // namespace assistant
