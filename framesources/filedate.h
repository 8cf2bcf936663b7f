// SPDX-License-Identifier: MIT
// When was a file's first picture taken, by as little of the file as possible?
#pragma once

#include <optional>
#include <string>

namespace framesources
{
/// UTC seconds since 1970, by FITS's DATE-OBS, EXIF or the time stamps of SER. Nothing if the file
/// has no date. Pixels are not read, so that a folder of thousands of files is put in order
/// quickly.
std::optional<double> dateInFile(const std::string &path);
} // namespace framesources
