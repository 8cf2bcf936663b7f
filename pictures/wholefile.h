// SPDX-License-Identifier: MIT
// How does a picture's file get its bytes, all of them or none?
#pragma once

#include <string>
#include <string_view>

namespace pictures
{
/// As files::replaceFile. A file that may not be written is not replaced; a link is followed to a
/// file that exists; pipes and devices are written into. The process must ignore SIGXFSZ.
/// @return what went wrong; empty = nothing
std::string writeWhole(const std::string &path, std::string_view bytes);
} // namespace pictures
