// SPDX-License-Identifier: MIT
// Which matrices does the capture thread work in, and how does one become a picture?
#pragma once

#include <QImage>
#include <memory>
#include <opencv2/core.hpp>

/// Side of the magnified view of monitor mode in pixels, and how much it enlarges.
constexpr int cropSide = 200;
constexpr int enlargement = 5;

/// The matrices, rows x columns, of one capture thread. The large ones are reserved only: no page
/// of them is touched before it is needed.
struct FrameMatrices {
    FrameMatrices();

    cv::Mat colourFrame;                  ///< 960 x 1280, 3 channels, blue green red
    cv::Mat enlargedGrey, enlargedColour; ///< 4800 x 6400
    cv::Mat magnifierCrop;                ///< 200 x 200, 3 channels, blue green red
};

/// The picture of an 8-bit matrix of one or three channels (blue, green, red); null, with a
/// critical log line, for anything else. One channel: an indexed picture over the matrix's own
/// pixels, without a colour table, valid as long as they are. Three: a picture that owns its
/// pixels.
std::unique_ptr<QImage> MatToQImage(const cv::Mat *mat);
