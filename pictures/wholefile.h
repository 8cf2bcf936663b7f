// SPDX-License-Identifier: MIT
// How does a file get new bytes, all of them or none?
#pragma once

#include <string>
#include <string_view>

namespace pictures
{
/// Writes a file without a name, or with a temporary one, in the same folder; it gets its name once
/// all bytes are there. An earlier file stays until then; its mode is kept, and its owner where
/// that is permitted. A file that may not be written is not replaced. A link is followed to a file
/// that exists. Pipes and devices are written into. The process must ignore SIGXFSZ.
/// @return what went wrong; empty = nothing
std::string writeWhole(const std::string &path, std::string_view bytes);
} // namespace pictures
