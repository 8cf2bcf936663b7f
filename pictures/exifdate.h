// SPDX-License-Identifier: MIT
// When was a picture taken, according to its file?
#pragma once

#include <optional>
#include <string>
#include <string_view>

/// The time of exposure of a JPEG (APP1), PNG (eXIf) or TIFF file, UTC seconds since 1970: EXIF's
/// DateTimeOriginal, else its DateTimeDigitized, else DateTime; with its OffsetTime if there is
/// one, else as local time of this machine. Nothing if there is none or the file is damaged.
/// Reference: CIPA DC-008 (Exif 2.32); TIFF 6.0; PNG third edition, 11.3.4.7.
std::optional<double> dateOfPicture(std::string_view file);

/// "2026:11:20 20:00:00" and "+01:00" (or empty: local time) to UTC seconds since 1970.
std::optional<double> parseExifDate(const std::string &date, const std::string &offset);
