// SPDX-License-Identifier: MIT
// By how much does the atmosphere lift a star near the pole?
#pragma once

/// Subtracts the refraction at the altitude h (degrees; for the pole, the observer's latitude) from
/// a y coordinate in frame pixels, so that the star moves upwards in the frame. One pixel counts as
/// one arcminute. Pressure in kPa, temperature in degrees Celsius. Negative refraction is set to
/// zero before it is scaled by pressure and temperature; at -273 degrees Celsius it is not scaled.
/// Always returns 0.
/// Reference: G. G. Bennett, The Calculation of Astronomical Refraction in Marine Navigation,
/// Journal of Navigation 35 (1982) 255.
int CorrectRefraction(double value, double h, double pressure, double temperature,
                      double &corrected);
