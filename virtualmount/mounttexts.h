// SPDX-License-Identifier: MIT
// How does the virtual mount's window format angles, knob turns and the true error?
#pragma once

#include "virtualcamera/truth.h"

#include <QString>

namespace virtualmount
{
/// Minutes and seconds of arc without a sign: "12′ 05″".
/// @param arcseconds the sign is ignored; "—" if the value is not finite
QString arcText(double arcseconds);

/// The remaining error, one text per line of the window.
struct TruthTexts {
    QString total, altitude, azimuth;
};
/// Where the axis points: "12′ 05″ too high", "3′ 20″ too far west"; no direction below half an
/// arcsecond.
TruthTexts truthTexts(const virtualsky::Truth &truth);

/// How far a knob has been turned, in turns: "0.25 up", "1.50 west", "0".
/// @param degrees that the bolt has moved the axis since counting began, up or east positive
QString altitudeTurns(double degrees);
QString azimuthTurns(double degrees);

/// "+30.0°", "-7.5°", "0.0°".
QString angleText(double degrees);
} // namespace virtualmount
