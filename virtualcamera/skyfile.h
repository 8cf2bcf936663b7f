// SPDX-License-Identifier: MIT
// Reads and writes the sky file.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

#include "virtualcamera/skystate.h"

namespace virtualsky
{
/// Bytes; a longer file is not read.
inline constexpr std::size_t largestSkyFile = 65536;

/// What is wrong with a sky file; `what()` is "line 3: latitude: must lie between -90 and 90".
class SkyFileError : public std::runtime_error
{
public:
    SkyFileError(int lineNumber, std::string keyName, const std::string &fault);
    int line() const { return badLine; }              ///< from 1; 0 = the file as a whole
    const std::string &key() const { return badKey; } ///< empty where no key is to blame

private:
    int badLine;
    std::string badKey;
};

/// The whole text or nothing. Keys that are not there have their defaults.
/// @throws SkyFileError for an empty text, a last line without an end (half-written), anything that
/// is no comment, section or key, unknown and repeated keys, bad values
SkyState parse(std::string_view text);

/// Every key, in sections, as `parse` reads it back.
std::string format(const SkyState &state);

/// Writes beside the file and renames, so that a reader sees the old text or the new, never a part.
/// A symbolic link stays one: what it leads to is written. Makes the folder (mode 0700) where it is
/// missing. False = failed, errno tells why.
bool writeAtomically(const std::string &name, std::string_view text);

/// $QUORVANDEL_SKY, or quorvandel/sky.ini in $XDG_RUNTIME_DIR, or in /tmp/quorvandel-UID.
std::string skyFilePath();
} // namespace virtualsky
