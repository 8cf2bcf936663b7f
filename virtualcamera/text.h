// SPDX-License-Identifier: MIT
// A line's text without leading and trailing blanks.
#pragma once

#include <string_view>

namespace virtualsky
{
inline std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view blanks = " \t\r";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}
} // namespace virtualsky
