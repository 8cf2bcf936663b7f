// SPDX-License-Identifier: MIT
// How does the camera describe a frame, and can the frame be shown?
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// Frame size that the program requests from the camera, pixels.
constexpr std::uint32_t frameWidthDefault = 1280;
constexpr std::uint32_t frameHeightDefault = 960;
/// Size of a frame buffer in bytes: the full frame with three 8-bit channels.
constexpr std::size_t frameBufferSize = std::size_t(frameWidthDefault) * frameHeightDefault * 3;

using FrameBuffer = std::array<std::uint8_t, frameBufferSize>;

/// A frame's format as reported by the camera.
struct FrameFormat {
    std::uint32_t width = 0, height = 0; ///< pixels
    std::uint32_t bpp = 0;               ///< bits per sample
    std::uint32_t channels = 0;
};

inline bool operator==(const FrameFormat &a, const FrameFormat &b)
{
    return a.width == b.width && a.height == b.height && a.bpp == b.bpp && a.channels == b.channels;
}

/// Whether a frame of this format fits into the buffer.
inline bool fitsBuffer(const FrameFormat &format)
{
    return format.channels >= 1 && format.channels <= 4 &&
           std::uint64_t(format.width) * format.height <= frameBufferSize / format.channels;
}

/// Whether a frame of this format can be shown.
inline bool isUsable(const FrameFormat &format)
{
    return format.width > 0 && format.height > 0 &&
           (format.channels == 1 || format.channels == 3) && fitsBuffer(format);
}
