// SPDX-License-Identifier: MIT
// Generator of star lists that no sky has, and of values that no star has.
#pragma once

#include "recognition/recognise.h"

#include <cstdint>
#include <random>
#include <string>
#include <vector>

enum class ListKind { Even, Line, Grid, Crowd, OnePlace, Circle, Pairs, Spoilt };
inline constexpr int listKinds = 8;

std::string nameOf(ListKind kind);

struct RandomList {
    ListKind kind;
    std::vector<recognition::DetectedStar>
        stars;         ///< 0 to 60, from number 1,000,000 on 5 to 12; many are short
    int width, height; ///< pixels; 1 to 5000 and 1 to 4000
    recognition::RecognitionOptions options; ///< scale, hemisphere, mirroring: known in some
};

/// The kinds take turns; the same number makes the same list.
RandomList randomList(std::uint64_t number);

/// Replaces a value of about every other star by one that is not finite, huge, tiny, zero or
/// negative.
void spoil(std::vector<recognition::DetectedStar> &stars, std::mt19937_64 &random);
