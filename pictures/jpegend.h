// SPDX-License-Identifier: MIT
// Is a JPEG file there in full?
#pragma once

#include <string_view>

namespace pictures
{
/// Whether the bytes begin a JPEG file whose end is missing. Decoders fill what is missing with
/// grey. Other files, and damaged ones, are not cut.
/// Reference: ITU-T T.81, annex B.
bool isCutJpeg(std::string_view bytes);
} // namespace pictures
