// SPDX-License-Identifier: MIT
// How far does the air lift a star?
//
// Horizon vectors are (east, north, up).
// Reference: ERFA's eraRefco and its sources; Green, Spherical Astronomy, Cambridge 1987,
// chapter 4.
#pragma once

#include "astrometry/vector3.h"

namespace astrometry
{
/// Green light, which the eye and the sensor see best.
constexpr double wavelengthMicrometres = 0.55;

/// The two constants of the refraction formula, radians: A tan z + B tan^3 z.
struct RefractionConstants {
    double a = 0.0;
    double b = 0.0;
};

/// For `wavelengthMicrometres`, by ERFA's refco.
/// @param pressure hectopascals  @param temperature degrees Celsius  @param humidity 0 to 1
RefractionConstants refractionConstants(double pressure, double temperature, double humidity);

/// Lifts a horizon vector towards the zenith. Below 3 degrees of altitude the formula is held at
/// its value there, so that nothing runs away at the horizon.
Vector3 refracted(const Vector3 &horizon, const RefractionConstants &constants);
} // namespace astrometry
