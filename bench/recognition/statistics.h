// SPDX-License-Identifier: MIT
// Medians, the thread's own time, and distances in units of a claimed ellipse.
#pragma once

#include <algorithm>
#include <cmath>
#include <ctime>
#include <vector>

#include "recognition/mapping.h"

/// Processor time of this thread, milliseconds.
inline double threadMilliseconds()
{
    timespec now = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) * 1e-6;
}

/// 0 of nothing.
inline double quantile(std::vector<double> values, double part)
{
    if (values.empty())
        return 0.0;
    const auto place = values.begin() + std::ptrdiff_t(part * double(values.size() - 1));
    std::nth_element(values.begin(), place, values.end());
    return *place;
}

inline double median(const std::vector<double> &values)
{
    return quantile(values, 0.5);
}

/// Root mean square; 0 of nothing.
inline double rms(const std::vector<double> &values)
{
    double sum = 0.0;
    for (const double value : values)
        sum += value * value;
    return values.empty() ? 0.0 : std::sqrt(sum / double(values.size()));
}

/// The ellipse that 95.45 of 100 errors of a normal distribution in two dimensions lie in: its
/// squared radius.
inline constexpr double twoSigmaEllipse = 6.18;

/// The squared length of an error in units of its covariance.
inline double squaredSigmas(double dx, double dy, const recognition::Covariance &claimed)
{
    const double determinant = claimed.xx * claimed.yy - claimed.xy * claimed.xy;
    return (claimed.yy * dx * dx - 2.0 * claimed.xy * dx * dy + claimed.xx * dy * dy) / determinant;
}
