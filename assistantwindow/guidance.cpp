// SPDX-License-Identifier: MIT
// Maps the error to pulses and to a phrase.
#include "assistantwindow/guidance.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>

namespace assistantwindow
{
namespace
{
constexpr double slowest = 2000.0, fastest = 120.0; // milliseconds
constexpr double farthest = 3600.0;                 // arcseconds

struct Unit {
    const char *one, *many;
};
constexpr Unit inDegrees{QT_TRANSLATE_NOOP("Speech", "1 degree"),
                         QT_TRANSLATE_N_NOOP("Speech", "%n degrees")};
constexpr Unit inMinutes{QT_TRANSLATE_NOOP("Speech", "1 minute"),
                         QT_TRANSLATE_N_NOOP("Speech", "%n minutes")};

QString counted(const Unit &unit, double number)
{
    const int whole = int(std::lround(number));
    return whole == 1 ? QCoreApplication::translate("Speech", unit.one)
                      : QCoreApplication::translate("Speech", unit.many, nullptr, whole);
}

QString sizeInWords(double arcseconds)
{
    const double size = std::abs(arcseconds);
    if (size >= 3570.0)
        return counted(inDegrees, size / 3600.0);
    if (size >= 57.5)
        return counted(inMinutes, size / 60.0);
    const int fives = int(std::max(5.0, std::round(size / 5.0) * 5.0));
    return QCoreApplication::translate("Speech", "%n seconds", nullptr, fives);
}
} // namespace

Pulses pulsesFor(const std::optional<assistant::ErrorFigures> &error, double goalArcseconds)
{
    if (!error || !std::isfinite(error->total.arcseconds))
        return {};
    if (error->total.arcseconds <= goalArcseconds)
        return {Pulses::Kind::Steady, 0};
    const double far = std::log(farthest / goalArcseconds);
    const double here = std::log(error->total.arcseconds / goalArcseconds);
    const double share = far > 0.0 ? std::min(1.0, here / far) : 1.0;
    return {Pulses::Kind::Pulse, int(std::lround(fastest + (slowest - fastest) * share))};
}

QString spokenPhrase(const std::optional<assistant::ErrorFigures> &error, double latitude,
                     double goalArcseconds)
{
    if (!error || !error->altitude || !error->azimuth)
        return {};
    if (error->total.arcseconds <= goalArcseconds)
        return QCoreApplication::translate("Speech", "aligned");
    const BoltWays ways = boltWays(error, latitude, goalArcseconds);
    const double shrink = std::cos(latitude * std::acos(-1.0) / 180.0);
    const double altitude = std::abs(error->altitude->arcseconds);
    const double azimuth = std::abs(error->azimuth->arcseconds);
    const bool altitudeFirst = altitude >= azimuth * shrink;
    //: A direction and a size, such as "up, 2 minutes"
    return QCoreApplication::translate("Speech", "%1, %2")
        .arg(wayText(altitudeFirst ? ways.altitude : ways.azimuth),
             sizeInWords(altitudeFirst ? altitude : azimuth));
}

Pulses chosenPulses(const std::optional<assistant::ErrorFigures> &error,
                    const assistant::Settings &settings)
{
    return settings.sound ? pulsesFor(error, settings.goalArcseconds) : Pulses();
}

QString chosenPhrase(const std::optional<assistant::ErrorFigures> &error,
                     const assistant::Settings &settings)
{
    if (!settings.speech || !settings.site)
        return {};
    return spokenPhrase(error, settings.site->latitude, settings.goalArcseconds);
}
} // namespace assistantwindow
