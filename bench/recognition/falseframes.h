// SPDX-License-Identifier: MIT
// Pictures in which the pole's sky is not: whoever recognises one of them is wrong.
#pragma once

#include <cstdint>
#include <opencv2/core.hpp>
#include <string>
#include <vector>

enum class FalseKind {
    Noise,       ///< grey noise of all strengths
    Black,       ///< bias, with and without noise
    Saturated,   ///< at full scale, with and without noise
    Clouds,      ///< lit clouds without stars
    HotPixels,   ///< a warm sensor under a cap
    RandomStars, ///< as many stars, as bright, as round the pole, but anywhere
    Terrestrial, ///< houses, windows, trees, wires, lamps, text
    OtherPole    ///< the sky round the other pole than the one that is asked for
};
inline constexpr int falseKinds = 8;

std::string nameOf(FalseKind kind);

struct FalseFrame {
    FalseKind kind;
    cv::Mat picture; ///< 8 bit, 1280 x 960, one channel
    bool askSouth;   ///< the hemisphere to ask for, of OtherPole alone
};

/// The same picture for the same number; all kinds in turn.
FalseFrame falseFrame(std::uint64_t number);
