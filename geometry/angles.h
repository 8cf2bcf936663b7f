// SPDX-License-Identifier: MIT
// How are degrees and radians converted into each other?
#pragma once

constexpr double pi = 3.141592653589793;

constexpr double toRadians(double degrees)
{
    return degrees * pi / 180.0;
}

constexpr double toDegrees(double radians)
{
    return radians * 180.0 / pi;
}
