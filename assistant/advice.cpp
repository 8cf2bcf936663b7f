// SPDX-License-Identifier: MIT
// The decisions behind the advice.
#include "assistant/advice.h"

#include "astrometry/vector3.h"
#include "recognition/axis.h"

#include <algorithm>
#include <cmath>

namespace assistant
{
namespace
{
using recognition::ExtractionStatus;

constexpr double nearlyThere = 60.0; // arcseconds

Advice ofStars(const LostSky &frame)
{
    if (frame.stars >= plentyOfStars)
        return {AdviceCode::NotThePole, double(frame.stars), 0.0, {}};
    if (frame.hadSky)
        return {AdviceCode::Clouds, double(frame.stars), 0.0, {}};
    return {AdviceCode::ExposeLonger, double(frame.stars), 0.0, {}};
}

/// A smaller one is said first.
int rankOf(AdviceCode code)
{
    switch (code) {
    case AdviceCode::ClockJumped: // ends by itself, as the stages' advice does
        return 1;
    case AdviceCode::RecordingFailed: // these two end when recording is switched off
    case AdviceCode::RecordingFull:
        return 2;
    case AdviceCode::ClockBehind:
    case AdviceCode::PoleThatWay:
    case AdviceCode::Focus:
        return 3;
    case AdviceCode::ClockUnsure:
        return 4;
    case AdviceCode::SiteMissing:
    case AdviceCode::SiteTooFarNorth:
        return 5;
    default:
        return 0;
    }
}
} // namespace

void orderAdvice(std::vector<Advice> &advice)
{
    if (advice.empty())
        return;
    std::stable_sort(advice.begin() + 1, advice.end(), [](const Advice &a, const Advice &b) {
        return rankOf(a.code) < rankOf(b.code);
    });
}

std::size_t solidStars(const std::vector<recognition::DetectedStar> &stars)
{
    constexpr double minRatio = 6.0;
    return std::size_t(
        std::count_if(stars.begin(), stars.end(),
                      [](const recognition::DetectedStar &star) { return star.snr >= minRatio; }));
}

Advice adviceOf(const LostSky &frame)
{
    switch (frame.status) {
    case ExtractionStatus::Black:
        return {AdviceCode::CoverOn, 0.0, 0.0, {}};
    case ExtractionStatus::SaturatedSky:
        return {AdviceCode::ExposeShorter, 0.0, 0.0, {}};
    case ExtractionStatus::BadFrame:
    case ExtractionStatus::TooLarge:
    case ExtractionStatus::NoSky:
        return {AdviceCode::NoSky, 0.0, 0.0, {}};
    case ExtractionStatus::OutOfFocus:
        return {AdviceCode::Focus, frame.fwhm, 0.0, {}};
    case ExtractionStatus::Trailed: // with few stars, what is drawn out is noise
    case ExtractionStatus::Ok:
    case ExtractionStatus::TooFewStars:
        break;
    }
    if (frame.status == ExtractionStatus::Trailed && frame.stars >= recognition::minStars)
        return {AdviceCode::HoldStill, 0.0, 0.0, {}};
    if (!frame.hadSky && (frame.isFirst || frame.searching))
        return {AdviceCode::Searching, double(frame.stars), 0.0, {}};
    return ofStars(frame);
}

std::optional<Advice> adviceOnPole(recognition::PixelPlace pole, int width, int height,
                                   double scale)
{
    const recognition::PixelPlace edge = {std::clamp(pole.x, -0.5, width - 0.5),
                                          std::clamp(pole.y, -0.5, height - 0.5)};
    if (edge.x == pole.x && edge.y == pole.y)
        return std::nullopt;
    const double right = pole.x - (width - 1) / 2.0;
    const double down = pole.y - (height - 1) / 2.0;
    // A pinhole's picture is drawn out towards its edges: pixels there are less than `scale`.
    const auto direction = [&](recognition::PixelPlace place) {
        const double unit = scale * astrometry::arcsecond;
        return astrometry::Vector3{(place.x - (width - 1) / 2.0) * unit,
                                   (place.y - (height - 1) / 2.0) * unit, 1.0};
    };
    return Advice{AdviceCode::PoleThatWay,
                  astrometry::angleBetween(direction(pole), direction(edge)) / astrometry::degree,
                  std::atan2(right, -down) / astrometry::degree,
                  {}};
}

Advice adviceOnAxis(const AxisProgress &axis)
{
    if (axis.enough)
        return {AdviceCode::StopTurning, axis.sigmaArcseconds, 0.0, {}};
    constexpr double begun = 1.0; // degrees
    return {axis.turnedDegrees < begun ? AdviceCode::TurnAxis : AdviceCode::TurnFurther,
            axis.turnedDegrees,
            0.0,
            {}};
}

Advice adviceOnBolts(const ErrorFigures &error, double goal)
{
    const double total = error.total.arcseconds;
    if (total < goal)
        return {AdviceCode::Aligned, total, 0.0, {}};
    return {total < nearlyThere ? AdviceCode::NearlyThere : AdviceCode::TurnBolts, total, 0.0, {}};
}
} // namespace assistant
