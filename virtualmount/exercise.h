// SPDX-License-Identifier: MIT
// From where does a new exercise begin, and is a mount already aligned?
#pragma once

#include "virtualcamera/skystate.h"

#include <random>

namespace virtualmount
{
/// The bolts of an exercise lie between minus and plus this, degrees.
constexpr double exerciseBolts = 3.0;
/// An exercise begins with the axis at least this far off the pole, degrees.
constexpr double exerciseLeastError = 0.5;
/// A mount whose axis misses the pole by no more than this counts as aligned, degrees.
constexpr double alignedError = 10.0 / 60.0;

/// Turns both bolts and the camera's roll to random readings and leaves the rest. They are spread
/// evenly over all with which an alignment can begin: the axis misses the pole, and the template
/// stars A and B lie well inside the picture. Where few readings or none do that, as with the
/// camera far off the axis, the last of a limited number of draws is taken.
/// \param utcSeconds UTC since 1970 of the sky
void beginExercise(virtualsky::SkyState &state, double utcSeconds, std::mt19937 &random);

/// Seeded from the system's own source.
std::mt19937 systemRandom();

bool isAligned(const virtualsky::SkyState &state);
} // namespace virtualmount
