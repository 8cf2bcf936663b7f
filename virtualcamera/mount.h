// SPDX-License-Identifier: MIT
// Which way does the mount's RA axis point, and how is the camera mounted on it?
//
// Horizon vectors are (east, north, up), camera vectors (right, down, forward).
#pragma once

#include "virtualcamera/skystate.h"
#include "virtualcamera/vector3.h"

namespace virtualsky
{
/// Turns of the sky per UT1 second: the rate of the Earth rotation angle (IAU 2000).
inline constexpr double skyTurnsPerSecond = 1.00273781191135448 / 86400.0;

bool isSouth(const SkyState &state);

/// How long the RA axis has been tracking since the tracked turn was 0; 0 without tracking.
double trackedSeconds(const SkyState &state, double utcSeconds);

/// The true pole above the horizon of the site, horizon vector.
Vector3 poleDirection(const SkyState &state);

/// The RA axis: the pole displaced by the bolts, horizon vector.
Vector3 axisDirection(const SkyState &state);

/// Transforms horizon vectors to camera vectors. The axis is always at the pixel given by the
/// camera's position on the mount, for all bolt positions and RA angles.
Matrix3 cameraFromHorizon(const SkyState &state, double utcSeconds);
} // namespace virtualsky
