// SPDX-License-Identifier: MIT
// Which int does a floating-point value become if it may be outside int's range?
#pragma once

#include <limits>

/// The value truncated toward zero; outside int's range the nearest int, and 0 for NaN. A plain
/// cast is undefined behaviour there.
inline int saturatingInt(double value)
{
    if (value >= 2147483647.0)
        return std::numeric_limits<int>::max();
    if (value <= -2147483648.0)
        return std::numeric_limits<int>::min();
    return value == value ? static_cast<int>(value) : 0;
}
