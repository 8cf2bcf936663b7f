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
    const auto whole = recognition::mountError(frame, axis, options);
    Axis exact = axis;
    exact.covariance = {};
    const auto byFrame = recognition::mountError(frame, exact, options);
    if (!whole || !byFrame)
        return std::nullopt;
    const auto rest = [](double all, double part) {
        return std::sqrt(std::max(all * all - part * part, 0.0));
    };
    FrameError error;
    error.hasSite = true;
    error.x = whole->altitude.arcseconds;
    error.y = whole->azimuth.arcseconds;
    error.frameX = byFrame->altitude.sigma;
    error.frameY = byFrame->azimuth.sigma;
    error.axisX = rest(whole->altitude.sigma, error.frameX);
    error.axisY = rest(whole->azimuth.sigma, error.frameY);
    return error;
}

double propagated(double byX, double byY, const recognition::Covariance &c)
{
    return std::sqrt(std::max(byX * byX * c.xx + 2.0 * byX * byY * c.xy + byY * byY * c.yy, 0.0)) /
           astrometry::arcsecond;
}

// Components across the Earth's axis are as good as angles: their sine is made an angle.
FrameError withoutSite(const Recognition &frame, const Axis &axis)
{
    const recognition::EarthView::Linear l = recognition::EarthView(frame, axis.place).linear();
    const double sine = std::hypot(l.x, l.y);
    const double stretch = sine > 0.0 ? std::asin(std::min(sine, 1.0)) / sine : 1.0;
    const recognition::Covariance mapped = frame.mapping.covarianceAt(axis.place);
    FrameError error;
    error.x = l.x * stretch / astrometry::arcsecond;
    error.y = l.y * stretch / astrometry::arcsecond;
    error.axisX = propagated(l.xByX, l.xByY, axis.covariance);
    error.axisY = propagated(l.yByX, l.yByY, axis.covariance);
    error.frameX = propagated(l.xByX, l.xByY, mapped);
    error.frameY = propagated(l.yByX, l.yByY, mapped);
    return error;
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
    constexpr std::size_t leastMatched = 8;
    constexpr double greatestResiduals = 0.35; // pixels
    return followed.status == recognition::RecognitionStatus::Recognised &&
           followed.matched.size() >= leastMatched &&
           followed.rms <= greatestResiduals * followed.scale;
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
    const double sigmaX = std::hypot(error.axisX, error.frameX);
    const double sigmaY = std::hypot(error.axisY, error.frameY);
    ErrorFigures figures;
    // Near the pole the part across the offset adds to the length as much as the one along it.
    const double along = std::hypot(x * sigmaX, y * sigmaY);
    const double across = std::hypot(y * sigmaX, x * sigmaY);
    const double nearness = across > 0.0 ? across / std::hypot(total, across) : 0.0;
    figures.total = {total, std::hypot(along, across * nearness)};
    if (!error.hasSite || !site)
        return figures;
    figures.altitude = Measured{error.x, sigmaX};
    if (90.0 - std::abs(site->latitude) >= leastPolarDistance) {
        const double stretch = 1.0 / std::cos(site->latitude * astrometry::degree);
        figures.azimuth = Measured{error.y * stretch, sigmaY * stretch};
    }
    return figures;
}
} // namespace assistant
