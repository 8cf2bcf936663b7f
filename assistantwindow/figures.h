// SPDX-License-Identifier: MIT
// How are angles, times and their uncertainties written for a person?
#pragma once

#include <QLocale>
#include <QString>

namespace assistantwindow
{
/// What stands where there is no valid number.
QString dash();

/// The size of an angle without its sign: "1°12′", "4′05″", below a minute "12.3″"; a dash if it is
/// not finite. Rounded first, so 59.96″ is "1′00″".
QString angleText(double arcseconds, const QLocale &locale);

/// "± 3.1″"; a dash if it is not finite.
QString uncertaintyText(double sigmaArcseconds, const QLocale &locale);

/// Whole degrees, "23°"; a dash if not finite.
QString degreesText(double degrees, const QLocale &locale);
/// Degrees of turn, of which a part does not count: 14.98 are 14, since 15 are asked for.
QString turnText(double degrees, const QLocale &locale);

/// "250 ms", from a second on "2.5 s".
QString exposureText(double microseconds, const QLocale &locale);

/// "0:42", "12:05", "1:02:03" of seconds; a dash if negative or not finite.
QString durationText(double seconds);
} // namespace assistantwindow
