// SPDX-License-Identifier: MIT
// The report as text.
#include "assistant/report.h"

#include "assistant/errorfigures.h"
#include "astrometry/utcdate.h"
#include "astrometry/vector3.h"

#include <QString>
#include <cmath>

namespace assistant
{
namespace
{
/// The Earth rotation angle in an hour, radians (IAU 2000).
constexpr double turnInAnHour = 2.0 * astrometry::pi * 1.00273781191135448 / 24.0;

QString number(double value, int decimals)
{
    return QString::number(value, 'f', decimals); // a decimal point whatever the locale
}

QString line(const char *name, const recognition::Measured &measured)
{
    return QStringLiteral("%1,%2,%3,arcsec\n")
        .arg(name, number(measured.arcseconds, 2), number(measured.sigma, 2));
}

QString linesOf(const char *when, const ErrorFigures &figures)
{
    const QByteArray prefix = when;
    QString text = line(prefix + " total error", figures.total);
    if (figures.altitude)
        text += line(prefix + " altitude error", *figures.altitude);
    if (figures.azimuth)
        text += line(prefix + " azimuth error", *figures.azimuth);
    return text;
}

QString aimLines(const Aim &aim)
{
    if (aim.pole == Aim::Pole::Seen)
        return QStringLiteral("pole,seen,,\n");
    return QStringLiteral("pole,%1,,\nair pressure,%2,,hPa\nair temperature,%3,,degC\n")
        .arg(aim.pole == Aim::Pole::True ? QStringLiteral("true") : QStringLiteral("refracted"),
             number(aim.pressure, 1), number(aim.temperature, 1));
}
} // namespace

Drift driftOf(double totalArcseconds, double declination)
{
    const double greatest = totalArcseconds * turnInAnHour;
    return {greatest, greatest / std::cos(declination * astrometry::degree)};
}

Aim aimOf(const Settings &settings, recognition::Hemisphere hemisphere)
{
    if (!observerOf(settings, hemisphere))
        return {};
    const bool isTrue = settings.target == recognition::PoleTarget::True;
    return {isTrue ? Aim::Pole::True : Aim::Pole::Refracted, settings.pressure,
            settings.temperature};
}

std::string csvOf(const Report &report)
{
    const Drift drift = driftOf(report.after.total.arcseconds);
    const Drift error = driftOf(report.after.total.sigma);
    QString text = QStringLiteral("quantity,value,sigma,unit\n");
    text += QStringLiteral("date,%1,,UTC\n")
                .arg(QString::fromStdString(astrometry::formatDate(report.utcSeconds)));
    if (report.site)
        text += QStringLiteral("latitude,%1,,deg\nlongitude,%2,,deg\n")
                    .arg(number(report.site->latitude, 5), number(report.site->longitude, 5));
    text += aimLines(report.aim);
    text += linesOf("first", report.before) + linesOf("last", report.after);
    text += QStringLiteral("time taken,%1,,s\n").arg(number(report.seconds, 0));
    text += QStringLiteral("greatest declination drift on the equator,%1,%2,arcsec/h\n")
                .arg(number(drift.declination, 3), number(error.declination, 3));
    text += QStringLiteral("greatest field rotation on the equator,%1,%2,arcsec/h\n")
                .arg(number(drift.rotation, 3), number(error.rotation, 3));
    text += QStringLiteral("greatest field rotation at declination %1,%2,%3,arcsec/h\n")
                .arg(number(highDeclination, 0),
                     number(driftOf(report.after.total.arcseconds, highDeclination).rotation, 3),
                     number(driftOf(report.after.total.sigma, highDeclination).rotation, 3));
    return text.toStdString();
}
} // namespace assistant
