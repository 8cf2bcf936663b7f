// SPDX-License-Identifier: MIT
// How does the camera describe a frame, and can a picture be made of it?
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// Frame size in pixels that the program asks the camera for.
constexpr std::uint32_t frameWidthDefault = 1280;
constexpr std::uint32_t frameHeightDefault = 960;
/// Bytes of a frame buffer: the full frame with three 8-bit channels.
constexpr std::size_t frameBufferSize = std::size_t(frameWidthDefault) * frameHeightDefault * 3;

using FrameBuffer = std::array<std::uint8_t, frameBufferSize>;

/// What the camera says of a frame.
struct FrameFormat {
    std::uint32_t width = 0, height = 0; ///< pixels
    std::uint32_t bpp = 0;               ///< bits a sample
    std::uint32_t channels = 0;
};

inline bool operator==(const FrameFormat &a, const FrameFormat &b)
{
    return a.width == b.width && a.height == b.height && a.bpp == b.bpp && a.channels == b.channels;
}

/// Whether the announced frame lies whole in its buffer.
inline bool fitsBuffer(const FrameFormat &format)
{
    return format.channels >= 1 && format.channels <= 4 &&
           std::uint64_t(format.width) * format.height <= frameBufferSize / format.channels;
}

/// Whether a picture can be made of the announced frame.
inline bool isUsable(const FrameFormat &format)
{
    return format.width > 0 && format.height > 0 &&
           (format.channels == 1 || format.channels == 3) && fitsBuffer(format);
}
