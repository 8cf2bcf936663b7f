// SPDX-License-Identifier: MIT
// Medians, the thread's own time, and distances in units of a claimed ellipse.
#pragma once

#include <vector>

#include "recognition/mapping.h"

/// Processor time of this thread, milliseconds.
double threadMilliseconds();

/// 0 of nothing. @param part 0 the least to 1 the greatest
double quantile(std::vector<double> values, double part);
double median(const std::vector<double> &values);

/// Root mean square; 0 of nothing.
double rms(const std::vector<double> &values);

/// The ellipse that 95.45 of 100 errors of a normal distribution in two dimensions are in: its
/// squared radius.
inline constexpr double twoSigmaEllipse = 6.18;

/// The squared length of an error in units of its covariance.
double squaredSigmas(double dx, double dy, const recognition::Covariance &claimed);
