// SPDX-License-Identifier: MIT
// How is one value of a sky file changed, and everything else left as it is?
#pragma once

#include <string>

/// The text with `key = value` in the section: in place of the key's line, at the section's
/// beginning, or in a new section at the end.
std::string withSkyValue(const std::string &text, const std::string &section,
                         const std::string &key, const std::string &value);
