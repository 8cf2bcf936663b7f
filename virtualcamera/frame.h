// SPDX-License-Identifier: MIT
// The measures of a frame: the sensor, a part of it, an exposure.
#pragma once

#include <cstdint>

namespace virtualsky
{
inline constexpr int sensorWidth = 1280; ///< pixels
inline constexpr int sensorHeight = 960; ///< pixels

/// A part of the sensor, from its top-left pixel.
struct Area {
    int x = 0, y = 0, width = sensorWidth, height = sensorHeight;
};

struct Exposure {
    double seconds;
    double gain;               ///< camera units, 1 to 100 in ordinary use
    std::uint64_t frameNumber; ///< draws the noise, together with the seed
};
} // namespace virtualsky
