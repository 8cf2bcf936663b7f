// SPDX-License-Identifier: MIT
// How many terms do the points support, which points count, and how large is their noise?
#pragma once

#include "recognition/polynomialfit.h"

#include <optional>
#include <vector>

namespace recognition
{
/// The model with the least Bayesian information criterion; nothing if not even a similarity can be
/// fitted. The other models are its rivals.
std::optional<PolynomialFit> fitBestModel(const std::vector<FitPoint> &points);

/// Sets the weights to Tukey's biweight, for the scatter that the median residual shows.
void weighRobustly(const SkyMapping::Solution &fit, std::vector<FitPoint> &points);

/// The residuals' covariance for a centroid variance of 1. Of few stars the scatter is poorly
/// known: it is drawn towards a round one, and widened as Student's distribution is.
Covariance noiseOf(const SkyMapping::Solution &fit, const std::vector<FitPoint> &points);

/// The middle one, of an even number the upper one. At least one value.
double medianOf(std::vector<double> values);
} // namespace recognition
