// SPDX-License-Identifier: MIT
// Which picture is in a BLOB of an INDI camera?
#pragma once

#include <string>

#include "framesources/indiclient.h"
#include "framesources/nativecamera.h"

namespace framesources
{
/// What is known of a stream's frames, which have no header.
struct StreamShape {
    cv::Size size; ///< pixels
    bool mosaic = false;
    std::string pattern; ///< as in `NativeFrame`
};

/// Decodes a FITS file, a JPEG picture or a raw frame of a stream (8 bits grey, 16 bits grey, or
/// 8 bits in three colours).
/// @param fault receives why there are no pixels
std::optional<NativeFrame> decodeBlob(IndiBlob &blob, const StreamShape &stream,
                                      std::string &fault);
} // namespace framesources
