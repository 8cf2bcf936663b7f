// SPDX-License-Identifier: MIT
// How is one value of a sky file changed, and everything else left as it is?
#pragma once

#include <optional>
#include <string>

struct SkyLine {
    int number = 0;   ///< from 1
    std::string text; ///< without its line end and the blanks around it
};

/// The line of a section's key; nothing if there is none.
std::optional<SkyLine> skyLine(const std::string &text, const std::string &section,
                               const std::string &key);

/// The text with `value` as the key's value. The key's line keeps its blanks and its comment; a key
/// that is missing gets a line at the section's beginning, or in a new section at the end.
std::string withSkyValue(const std::string &text, const std::string &section,
                         const std::string &key, const std::string &value);
