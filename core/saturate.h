// SPDX-License-Identifier: MIT
// Which whole number does a floating-point value become when it may lie outside int's range?
#pragma once

#include <limits>

/// The value truncated toward zero; beyond int's range the nearest int, 0 for not-a-number.
/// A plain cast would be undefined there.
inline int saturatingInt(double value)
{
    if (value >= 2147483647.0)
        return std::numeric_limits<int>::max();
    if (value <= -2147483648.0)
        return std::numeric_limits<int>::min();
    return value == value ? static_cast<int>(value) : 0;
}
