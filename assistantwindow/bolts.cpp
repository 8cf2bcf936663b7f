// SPDX-License-Identifier: MIT
// Turns the signs of the error into the bolts' directions.
#include "assistantwindow/bolts.h"

#include <QCoreApplication>
#include <cmath>

namespace assistantwindow
{
namespace
{
Way wayOf(const std::optional<recognition::Measured> &part, double onSky, double share,
          Way ifPositive, Way ifNegative)
{
    if (!part || !std::isfinite(part->arcseconds))
        return Way::Unknown;
    if (std::abs(part->arcseconds) * onSky <= share)
        return Way::Stay;
    return part->arcseconds > 0.0 ? ifPositive : ifNegative;
}
} // namespace

BoltWays boltWays(const std::optional<assistant::ErrorFigures> &error, double latitude,
                  double goalArcseconds)
{
    if (!error)
        return {};
    const double share = goalArcseconds / std::sqrt(2.0);
    const double shrink = std::cos(latitude * std::acos(-1.0) / 180.0);
    return {wayOf(error->altitude, 1.0, share, Way::Down, Way::Up),
            wayOf(error->azimuth, shrink, share, Way::West, Way::East),
            wayOf(error->altitude, 1.0, 0.0, Way::Down, Way::Up),
            wayOf(error->azimuth, shrink, 0.0, Way::West, Way::East)};
}

double arrowDegrees(Way way, recognition::Hemisphere hemisphere)
{
    const double east = hemisphere == recognition::Hemisphere::North ? 90.0 : -90.0;
    switch (way) {
    case Way::Down:
        return 180.0;
    case Way::East:
        return east;
    case Way::West:
        return -east;
    default:
        return 0.0;
    }
}

QString wayText(Way way)
{
    switch (way) {
    case Way::Up:
        return QCoreApplication::translate("Bolts", "up");
    case Way::Down:
        return QCoreApplication::translate("Bolts", "down");
    case Way::East:
        return QCoreApplication::translate("Bolts", "east");
    case Way::West:
        return QCoreApplication::translate("Bolts", "west");
    case Way::Stay:
        return QCoreApplication::translate("Bolts", "good");
    case Way::Unknown:
        break;
    }
    return {};
}
} // namespace assistantwindow
