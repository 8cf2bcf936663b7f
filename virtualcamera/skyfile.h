// SPDX-License-Identifier: MIT
// Reads and writes the sky file.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

#include "virtualcamera/skyfault.h"
#include "virtualcamera/skystate.h"

namespace virtualsky
{
/// Bytes; a larger file is rejected.
inline constexpr std::size_t largestSkyFile = 65536;

/// What is wrong with a sky file; `what()` is "line 3: latitude: must lie between -90 and 90".
class SkyFileError : public std::runtime_error
{
public:
    SkyFileError(int lineNumber, std::string keyName, SkyFault skyFault);
    int line() const { return badLine; }              ///< from 1; 0 = the whole file
    const std::string &key() const { return badKey; } ///< empty if no key is involved
    const SkyFault &fault() const { return reason; }

private:
    int badLine;
    std::string badKey;
    SkyFault reason;
};

/// Parses the entire text or fails. Missing keys get their defaults.
/// @throws SkyFileError for an empty text, a last line without a line end (half-written), any line
/// that is not a comment, section or key, unknown and repeated keys, and invalid values
SkyState parse(std::string_view text);

/// Every key, in sections, in the form that `parse` reads.
std::string format(const SkyState &state);

/// The file's text.
/// @throws SkyFileError if it cannot be read, is no ordinary file, or is larger than that
std::string readText(const std::string &path);

/// As files::replaceFile, so that a reader gets either the old or the new text. A symbolic link is
/// kept: its target is written. Creates the folder (mode 0700) if it is missing. False = failed,
/// see errno.
bool writeAtomically(const std::string &name, std::string_view text);

/// $QUORVANDEL_SKY, or quorvandel/sky.ini in $XDG_RUNTIME_DIR, or sky.ini in /tmp/quorvandel-UID,
/// which is made. If that is not this user's alone, another one is used (see privatefolder.h), and
/// a line on standard error says so.
std::string skyFilePath();
} // namespace virtualsky
