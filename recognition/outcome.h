// SPDX-License-Identifier: MIT
// What follows from a refined mapping: pole, scale, roll.
#pragma once

#include "recognition/recognise.h"
#include "recognition/refinement.h"

namespace recognition
{
/// @param logChance natural logarithm of the bound on the probability of chance
/// @param extracted how many stars were found in the frame
/// The matched stars' indices stay those of `frame`. The status is NoMatch where the mapping puts
/// the pole nowhere.
Recognition outcomeOf(const Refined &refined, const StarFrame &frame, Hemisphere hemisphere,
                      double logChance, std::size_t extracted, const RecognitionOptions &options);
} // namespace recognition
