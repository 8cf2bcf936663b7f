// SPDX-License-Identifier: MIT
// The texts of the virtual mount's window that contain numbers.
#include "virtualmount/mounttexts.h"

#include "virtualmount/mountmodel.h"

#include <QCoreApplication>
#include <QLocale>
#include <cmath>

namespace virtualmount
{
namespace
{
QString text(const char *source)
{
    return QCoreApplication::translate("virtualmount", source);
}

QString sided(double arcseconds, const char *positive, const char *negative)
{
    const QString size = arcText(arcseconds);
    if (!(std::abs(arcseconds) >= 0.5))
        return size;
    return text(arcseconds > 0.0 ? positive : negative).arg(size);
}

QString turns(double degrees, const char *positive, const char *negative)
{
    const double turned = degrees / degreesPerTurn;
    const QString size = QLocale().toString(std::abs(turned), 'f', 2);
    if (!(std::abs(turned) >= 0.005))
        return QStringLiteral("0");
    return text(turned > 0.0 ? positive : negative).arg(size);
}
} // namespace

QString arcText(double arcseconds)
{
    if (!std::isfinite(arcseconds))
        return QStringLiteral("—");
    const double whole = std::round(std::abs(arcseconds));
    const double minutes = std::floor(whole / 60.0);
    return QStringLiteral("%1′ %2″")
        .arg(minutes, 0, 'f', 0)
        .arg(whole - 60.0 * minutes, 2, 'f', 0, QLatin1Char('0'));
}

TruthTexts truthTexts(const virtualsky::Truth &truth)
{
    return {arcText(truth.poleError),
            sided(truth.altitudeError, QT_TRANSLATE_NOOP("virtualmount", "%1 too high"),
                  QT_TRANSLATE_NOOP("virtualmount", "%1 too low")),
            sided(truth.azimuthError, QT_TRANSLATE_NOOP("virtualmount", "%1 too far east"),
                  QT_TRANSLATE_NOOP("virtualmount", "%1 too far west"))};
}

QString altitudeTurns(double degrees)
{
    return turns(degrees, QT_TRANSLATE_NOOP("virtualmount", "%1 up"),
                 QT_TRANSLATE_NOOP("virtualmount", "%1 down"));
}

QString azimuthTurns(double degrees)
{
    return turns(degrees, QT_TRANSLATE_NOOP("virtualmount", "%1 east"),
                 QT_TRANSLATE_NOOP("virtualmount", "%1 west"));
}

QString angleText(double degrees)
{
    const double tenths = std::round(10.0 * degrees) / 10.0 + 0.0;
    return (tenths > 0.0 ? QStringLiteral("+%1°") : QStringLiteral("%1°"))
        .arg(QLocale().toString(tenths, 'f', 1));
}
} // namespace virtualmount
