// SPDX-License-Identifier: MIT
// By how much does the atmosphere lift a star near the pole?
#include "geometry/refraction.h"

#include "geometry/angles.h"

#include <cmath>

int CorrectRefraction(double value, double h, double pressure, double temperature,
                      double &corrected)
{
    constexpr double radiansPerDegree = pi / 180.0;

    // Arcminutes. Above the horizon, negative only close to the zenith.
    double refraction = std::tan(pi / 2.0 - (h + 7.31 / (h + 4.4)) * radiansPerDegree);
    if (refraction < 0.0)
        refraction = 0.0;
    const double kelvin = temperature + 273.0;
    if (kelvin != 0.0)
        refraction = refraction * (pressure / 101.0) * (283.0 / kelvin);
    corrected = value - refraction;
    return 0;
}
