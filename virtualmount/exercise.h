// SPDX-License-Identifier: MIT
// Where does a new exercise start, and is a mount already aligned?
#pragma once

#include "virtualcamera/skystate.h"

#include <random>

namespace virtualmount
{
/// Bolt readings of an exercise are between minus and plus this value, degrees.
constexpr double exerciseBolts = 3.0;
/// The axis is at least this far from the pole when an exercise starts, degrees.
constexpr double exerciseLeastError = 0.5;
/// A mount whose axis is no farther than this from the pole counts as aligned, degrees.
constexpr double alignedError = 10.0 / 60.0;

/// Sets both bolts and the camera's roll to random readings and leaves the rest unchanged. The
/// readings are uniformly distributed over those from which an alignment can start: the axis is off
/// the pole, and the template stars A and B are well inside the picture. If few or no readings
/// qualify, for example with the camera far off the axis, the last of a limited number of draws is
/// used.
/// @param utcSeconds UTC of the sky, seconds since 1970
void beginExercise(virtualsky::SkyState &state, double utcSeconds, std::mt19937 &random);

/// Seeded from the system's random source.
std::mt19937 systemRandom();

bool isAligned(const virtualsky::SkyState &state);
} // namespace virtualmount
