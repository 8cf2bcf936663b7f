// SPDX-License-Identifier: MIT
// Which way does the mount's RA axis point, and how does the camera sit on it?
//
// Horizon vectors are (east, north, up), camera vectors (right, down, forward).
#pragma once

#include "virtualcamera/skystate.h"
#include "virtualcamera/vector3.h"

namespace virtualsky
{
/// Turns of the sky in a UT1 second: the rate of the Earth rotation angle (IAU 2000).
inline constexpr double skyTurnsPerSecond = 1.00273781191135448 / 86400.0;

bool isSouth(const SkyState &state);

/// How long the RA axis has followed the sky since the tracked turn was 0; 0 without tracking.
double trackedSeconds(const SkyState &state, double utcSeconds);

/// The true pole above the horizon of the site, horizon vector.
Vector3 poleDirection(const SkyState &state);

/// The RA axis: the pole displaced by the bolts, horizon vector.
Vector3 axisDirection(const SkyState &state);

/// Turns horizon vectors into camera vectors. The axis always falls on the pixel that the camera's
/// place on the mount sets, whatever the bolts and the RA angle are.
Matrix3 cameraFromHorizon(const SkyState &state, double utcSeconds);
} // namespace virtualsky
