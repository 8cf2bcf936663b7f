// SPDX-License-Identifier: MIT
// Which pixels are in a picture's file, and when was it taken?
#pragma once

#include <opencv2/core.hpp>
#include <optional>
#include <string>

struct PictureFile {
    cv::Mat pixels;             ///< as stored, not turned by what EXIF says; empty if unreadable
    bool mosaic = false;        ///< the pixels of a Bayer sensor, by the file's own account
    std::optional<double> date; ///< UTC seconds since 1970
    std::string complaint;      ///< why there are no pixels
    std::string pattern;        ///< of a mosaic, from the top left: "RGGB", ...; empty: unknown
};

/// Reads a PNG, JPEG, TIFF or FITS file, grey or colour: 8 or 16 bits; FITS and TIFF also 32 bits
/// and floating point, which become 16 bits. A JPEG file whose end is missing is no picture. Never
/// throws for a file of any kind.
PictureFile readPicture(const std::string &path);

/// The same from a file's bytes, which stay as they are; what is missing of a JPEG picture is grey.
PictureFile decodePicture(std::string &bytes);
