// SPDX-License-Identifier: MIT
// Writes angles and times, rounded before they are split into units.
#include "assistantwindow/figures.h"

#include <QCoreApplication>
#include <cmath>

namespace assistantwindow
{
namespace
{
QString two(long long number, const QLocale &locale)
{
    const QString text = locale.toString(number);
    return number < 10 ? locale.zeroDigit() + text : text;
}

QString pair(long long whole, const char *unit, long long part, const char *partUnit,
             const QLocale &locale)
{
    return locale.toString(whole) + QString::fromUtf8(unit) + two(part, locale) +
           QString::fromUtf8(partUnit);
}
} // namespace

QString dash()
{
    return QStringLiteral("—");
}

QString angleText(double arcseconds, const QLocale &locale)
{
    const double size = std::abs(arcseconds);
    if (!std::isfinite(size) || size > 648000.0)
        return dash();
    if (std::round(size * 10.0) < 600.0)
        return locale.toString(size, 'f', 1) + QStringLiteral("″");
    const long long seconds = std::llround(size);
    if (seconds < 3600)
        return pair(seconds / 60, "′", seconds % 60, "″", locale);
    const long long minutes = std::llround(size / 60.0);
    return pair(minutes / 60, "°", minutes % 60, "′", locale);
}

QString uncertaintyText(double sigmaArcseconds, const QLocale &locale)
{
    const QString size = angleText(sigmaArcseconds, locale);
    return size == dash() ? size : QStringLiteral("± ") + size;
}

QString degreesText(double degrees, const QLocale &locale)
{
    if (!std::isfinite(degrees))
        return dash();
    return locale.toString(std::llround(degrees)) + QStringLiteral("°");
}

QString turnText(double degrees, const QLocale &locale)
{
    constexpr double whole = 1e-6; // what computing leaves of a whole number
    return degreesText(std::floor(degrees + whole), locale);
}

QString exposureText(double microseconds, const QLocale &locale)
{
    if (!(microseconds > 0.0) || !std::isfinite(microseconds))
        return dash();
    if (microseconds < 999500.0)
        return QCoreApplication::translate("Figures", "%1 ms")
            .arg(locale.toString(std::llround(microseconds / 1000.0)));
    return QCoreApplication::translate("Figures", "%1 s")
        .arg(locale.toString(microseconds / 1e6, 'f', 1));
}

QString durationText(double seconds)
{
    if (!(seconds >= 0.0) || seconds > 1e7)
        return dash();
    const long long whole = std::llround(seconds);
    const QLatin1Char zero('0');
    const QString tail = QStringLiteral("%1").arg(whole % 60, 2, 10, zero);
    if (whole < 3600)
        return QStringLiteral("%1:%2").arg(whole / 60).arg(tail);
    return QStringLiteral("%1:%2:%3").arg(whole / 3600).arg(whole / 60 % 60, 2, 10, zero).arg(tail);
}
} // namespace assistantwindow
