// SPDX-License-Identifier: MIT
// Which matrices does the capture thread use, and how is one converted to a picture?
#pragma once

#include <QImage>
#include <cstdint>
#include <memory>
#include <opencv2/core.hpp>

/// Side of the magnified view of monitor mode in pixels, and its magnification.
constexpr int cropSide = 200;
constexpr int enlargement = 5;

/// The matrices of one capture thread, rows x columns. Of the enlarged ones only the part round a
/// star is ever used. Their memory comes straight from the system, so that the rest costs nothing,
/// not even where a sanitizer's allocator marks each byte that it hands out. It lives as long as
/// this object or a copy of it: a matrix header alone does not keep it.
class FrameMatrices
{
    std::shared_ptr<std::uint8_t> greyPages, colourPages;

public:
    /// @throws std::bad_alloc
    FrameMatrices();

    cv::Mat colourFrame;    ///< 960 x 1280, 3 channels, blue green red
    cv::Mat enlargedGrey;   ///< 4800 x 6400, 1 channel
    cv::Mat enlargedColour; ///< 4800 x 6400, 3 channels, blue green red
    cv::Mat magnifierCrop;  ///< 200 x 200, 3 channels, blue green red
};

/// Converts an 8-bit matrix of one or three channels (blue, green, red); null, with a critical log
/// line, for anything else. One channel: an indexed picture without a colour table that shares the
/// matrix's pixels, valid as long as they are. Three channels: a picture that owns its pixels.
std::unique_ptr<QImage> MatToQImage(const cv::Mat *mat);
