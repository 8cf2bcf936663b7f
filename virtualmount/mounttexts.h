// SPDX-License-Identifier: MIT
// How does the virtual mount's window say angles, turns of a knob and the truth?
#pragma once

#include "virtualcamera/truth.h"

#include <QString>

namespace virtualmount
{
/// Minutes and seconds of arc without a sign: "12′ 05″".
/// @param arcseconds of either sign; said as "—" if it is no finite number
QString arcText(double arcseconds);

/// The error that remains, one text a line of the window.
struct TruthTexts {
    QString total, altitude, azimuth;
};
/// Where the axis points: "12′ 05″ too high", "3′ 20″ too far west"; below half an arcsecond no
/// side.
TruthTexts truthTexts(const virtualsky::Truth &truth);

/// How far a knob has been turned, in turns: "0.25 up", "1.50 west", "0".
/// @param degrees that the bolt has moved the axis since the count began, up or east positive
QString altitudeTurns(double degrees);
QString azimuthTurns(double degrees);

/// "+30.0°", "-7.5°", "0.0°".
QString angleText(double degrees);
} // namespace virtualmount
