// SPDX-License-Identifier: MIT
// Which picture is in a FITS file, when was it taken, and how is one written?
//
// Reference: FITS Standard 4.0 (IAU FITS Working Group, 2018).
#pragma once

#include <opencv2/core.hpp>
#include <optional>
#include <string>
#include <string_view>

#include "pictures/picturefile.h"

namespace pictures
{
bool isFits(std::string_view bytes);

/// The first picture of the file, compressed or not: two axes, or three with three planes, red
/// green blue. Unsigned 8 and 16 bits stay; everything else is stretched to 16 bits, unknown values
/// become the least one. The first row is the top one unless ROWORDER says BOTTOM-UP; BAYERPAT
/// makes it a mosaic. The date is the middle of the exposure: DATE-OBS plus half of EXPTIME, or
/// DATE-AVG.
PictureFile decodeFits(std::string &bytes);

/// That date alone; the bytes may end behind the header.
std::optional<double> dateOfFits(std::string &bytes);

/// Writes 8 or 16 bits of one channel; a file of that name is replaced or stays.
/// @param pattern of a mosaic; empty = it is grey
/// @param date the middle of the exposure, UTC seconds since 1970
/// @param exposure seconds; 0 = unknown
/// @return what went wrong; empty = nothing
std::string writeFits(const std::string &path, const cv::Mat &picture, std::optional<double> date,
                      double exposure, const std::string &pattern = {});
} // namespace pictures
