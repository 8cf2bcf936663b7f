// SPDX-License-Identifier: MIT
// By how much does the atmosphere lift a star near the pole?
#pragma once

/// Subtracts the refraction at the altitude h (degrees; the pole's is the observer's latitude)
/// from a y coordinate in frame pixels, taking one pixel as one minute of arc, so that the star
/// moves upwards in the frame. Pressure in kPa, temperature in degrees Celsius.
/// The refraction is never negative before pressure and temperature scale it; at -273 degrees it
/// stays unscaled. Always returns 0.
/// Reference: G. G. Bennett, The Calculation of Astronomical Refraction in Marine Navigation,
/// Journal of Navigation 35 (1982) 255.
int CorrectRefraction(double value, double h, double pressure, double temperature,
                      double &corrected);
