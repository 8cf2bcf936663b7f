// SPDX-License-Identifier: MIT
// Computes every text and arrow of the window from a status.
#include "assistantwindow/display.h"

#include "assistantwindow/aimtext.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>

namespace assistantwindow
{
namespace
{
Figure figureOf(const std::optional<recognition::Measured> &measured, const QLocale &locale)
{
    if (!measured || !std::isfinite(measured->arcseconds) || !std::isfinite(measured->sigma))
        return {dash(), {}, {}, {}};
    return {angleText(measured->arcseconds, locale), uncertaintyText(measured->sigma, locale),
            measured->arcseconds, measured->sigma};
}

void addFigures(Display &display, const assistant::Status &status, const QLocale &locale)
{
    const auto &error = status.error;
    using Part = std::optional<recognition::Measured>;
    display.total = figureOf(error ? Part(error->total) : Part(), locale);
    display.altitude = figureOf(error ? error->altitude : Part(), locale);
    display.azimuth = figureOf(error ? error->azimuth : Part(), locale);
    display.hasBolts = display.altitude.arcseconds && display.azimuth.arcseconds;
    if (error)
        display.uncertainty = display.total.sigma;
    else if (status.stage == assistant::Stage::Axis && status.axis.sigmaArcseconds > 0.0 &&
             status.axis.place)
        display.uncertainty = uncertaintyText(status.axis.sigmaArcseconds, locale);
    if (display.uncertainty.isEmpty())
        display.uncertainty = dash();
}

void addArrows(Display &display, const assistant::Status &status,
               const assistant::Settings &settings, const QLocale &locale)
{
    const double latitude = settings.site ? settings.site->latitude : 0.0;
    display.ways = boltWays(status.error, latitude, settings.goalArcseconds);
    const auto hemisphere = status.sky ? status.sky->hemisphere : recognition::Hemisphere::North;
    display.altitudeArrow = arrowDegrees(display.ways.altitudeSide, hemisphere);
    display.azimuthArrow = arrowDegrees(display.ways.azimuthSide, hemisphere);
    //: Before a text such as: true pole, no refraction
    display.aim = QCoreApplication::translate("Display", "Aimed at: %1")
                      .arg(aimText(assistant::aimOf(settings, hemisphere), locale));
    if (status.error && status.pole && status.axis.place) {
        const double x = status.pole->x - status.axis.place->x;
        const double y = status.pole->y - status.axis.place->y;
        display.pictureArrow = std::atan2(x, -y) * 180.0 / std::acos(-1.0);
    }
}

void addSky(Display &display, const assistant::Status &status, const QLocale &locale)
{
    if (status.stars.empty())
        return;
    const std::size_t matched = status.sky ? status.sky->matched.size() : 0;
    display.stars = QCoreApplication::translate("Display", "Stars recognised: %1 of %2")
                        .arg(locale.toString(qulonglong(matched)),
                             locale.toString(qulonglong(status.stars.size())));
    display.focus = QCoreApplication::translate("Display", "Width of the stars: %1 pixels")
                        .arg(locale.toString(status.fwhm, 'f', 1));
}

void addAdvice(Display &display, std::vector<assistant::Advice> advice, bool dismissed,
               const QLocale &locale)
{
    using assistant::AdviceCode;
    if (dismissed)
        advice.erase(
            std::remove_if(advice.begin(), advice.end(),
                           [](const assistant::Advice &a) { return canBeDismissed(a.code); }),
            advice.end());
    const auto has = [&advice](AdviceCode code) {
        return std::any_of(advice.begin(), advice.end(),
                           [code](const assistant::Advice &a) { return a.code == code; });
    };
    display.aligned = has(AdviceCode::Aligned);
    // Once the bolts have led near the pole, nobody need hear that the axis is known.
    if (display.aligned || has(AdviceCode::NearlyThere))
        advice.erase(std::remove_if(advice.begin(), advice.end(),
                                    [](const assistant::Advice &a) {
                                        return a.code == AdviceCode::StopTurning;
                                    }),
                     advice.end());
    if (advice.empty())
        advice.emplace_back();
    display.advice = adviceText(advice[0], display.hasBolts, locale);
    display.mood = moodOf(advice[0].code);
    for (std::size_t i = 1; i < advice.size(); ++i)
        display.further.append(adviceText(advice[i], display.hasBolts, locale));
    if (advice.size() > 1) {
        display.hint = display.further.first();
        display.hintReason = reasonText(advice[1].code);
        display.hintCanBeDismissed = canBeDismissed(advice[1].code);
    }
}
} // namespace

double turnShare(const assistant::AxisProgress &axis)
{
    constexpr double nearlyFull = 0.96;
    if (axis.enough)
        return 1.0;
    return std::clamp(axis.turnedDegrees / assistant::enoughTurn, 0.0, nearlyFull);
}

Display displayOf(const assistant::Status &status, const assistant::Settings &settings,
                  const QLocale &locale, bool dismissed)
{
    Display display;
    display.stage = status.stage;
    display.stageText = stageText(status.stage);
    addFigures(display, status, locale);
    addArrows(display, status, settings, locale);
    addSky(display, status, locale);
    addAdvice(display, status.advice, dismissed, locale);
    const bool isTurned =
        status.stage == assistant::Stage::Axis || status.stage == assistant::Stage::Bolts;
    display.axisTurn = isTurned ? turnText(status.axis.turnedDegrees, locale) : dash();
    display.axisShare = turnShare(status.axis);
    display.axisEnough = status.axis.enough;
    return display;
}
} // namespace assistantwindow
