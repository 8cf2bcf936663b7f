// SPDX-License-Identifier: MIT
// How does a file get new bytes, all of them or none?
#pragma once

#include <string>
#include <string_view>
#include <sys/types.h>

namespace files
{
/// Writes all bytes, through signals too. @return false = failed, see errno
bool writeAll(int descriptor, std::string_view bytes);

/// Writes a file without a name, or with a temporary one, in the same folder; it gets its name once
/// all bytes are there, so that a reader gets the old bytes or the new ones. The mode of a file
/// that is replaced stays, and its owner where that is permitted. A link is replaced, not followed.
/// @param newMode of a file that is new, but for the process' mask
/// @return false = failed, see errno: the earlier file is as it was
bool replaceFile(const std::string &path, std::string_view bytes, mode_t newMode);
} // namespace files
