// SPDX-License-Identifier: MIT
// Which pixels are in a picture's file, and when was it taken?
#pragma once

#include <opencv2/core.hpp>
#include <optional>
#include <string>

struct PictureFile {
    cv::Mat pixels;             ///< as stored, not turned by what EXIF says; empty if unreadable
    std::optional<double> date; ///< UTC seconds since 1970
    std::string complaint;      ///< why there are no pixels
};

/// Reads a PNG, JPEG or TIFF file of 8 or 16 bits, grey or colour. Never throws for a file of any
/// kind.
PictureFile readPicture(const std::string &path);
