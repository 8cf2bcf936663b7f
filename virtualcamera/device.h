// SPDX-License-Identifier: MIT
// One open camera: its settings, its live mode, its frames.
#pragma once

#include <array>
#include <cstdint>
#include <mutex>
#include <optional>

#include "virtualcamera/frameclock.h"
#include "virtualcamera/framesource.h"

namespace virtualsky
{
struct FrameShape {
    std::uint32_t width, height, bitsPerSample, channels;
};

/// All members are thread-safe. `false` means refused; the state is then unchanged.
class Device
{
public:
    explicit Device(FrameSource &frameSource);

    bool setReadMode(std::uint32_t mode);  ///< only 0 is supported
    bool setStreamMode(std::uint8_t mode); ///< 0 single, 1 live
    bool init();
    bool setBits(std::uint32_t bits);              ///< only 8 is supported
    bool setBin(std::uint32_t x, std::uint32_t y); ///< only 1, 1 is supported
    bool setArea(std::uint32_t x, std::uint32_t y, std::uint32_t width, std::uint32_t height);
    /// @param control number in the camera interface: 6 gain, 8 exposure (microseconds), 9 speed (0
    /// to 2), 12 USB traffic (0 to 255)
    bool setParameter(std::int32_t control, double value);
    std::optional<double> parameter(std::int32_t control) const;

    bool beginLive(); ///< requires `init` and live stream mode
    bool stopLive();
    /// Copies a frame if one is ready; does not wait.
    bool takeFrame(FrameShape &shape, std::uint8_t *buffer);

private:
    double exposureSeconds() const;
    double period(const Behaviour &behaviour) const;

    FrameSource &source;
    mutable std::mutex mutex; // guards everything below
    bool initialised = false;
    bool live = false;
    std::uint8_t streamMode = 0;
    Area area;
    std::array<double, 4> values; // same order as the table of controls
    FrameClock clock;
    std::uint64_t frameNumber = 0; // frames since live mode began
};
} // namespace virtualsky
