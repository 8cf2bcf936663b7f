// SPDX-License-Identifier: MIT
// The dimensions of a frame: the sensor, an area of it, an exposure.
#pragma once

#include <cstdint>

namespace virtualsky
{
inline constexpr int sensorWidth = 1280; ///< pixels
inline constexpr int sensorHeight = 960; ///< pixels

/// An area of the sensor, relative to its top-left pixel.
struct Area {
    int x = 0, y = 0, width = sensorWidth, height = sensorHeight;
};

struct Exposure {
    double seconds;
    double gain;               ///< camera units, usually 1 to 100
    std::uint64_t frameNumber; ///< selects the noise, together with the seed
};
} // namespace virtualsky
