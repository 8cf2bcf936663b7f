// SPDX-License-Identifier: MIT
// Which polynomial takes pixels to the plane of the sky with the least weighted residuals?
#pragma once

#include "recognition/mapping.h"

#include <complex>
#include <optional>
#include <vector>

namespace recognition
{
/// One star: its measured and its true place.
struct FitPoint {
    std::complex<double> pixel; ///< in units of the mapping
    std::complex<double> plane; ///< radians
    double variance;            ///< pixels squared, one axis, as far as known beforehand
    double weight = 1.0;        ///< 0 to 1, what a robust fit makes of it
};

struct PolynomialFit {
    SkyMapping::Fit fit;     ///< noise for a variance of 1, floor2 not set
    double chiSquared = 0.0; ///< weighted squares of the residuals, radians squared a pixel squared
    double weights = 0.0;    ///< sum of the robust weights
};

/// Distortion alone is drawn out and not twisted (see `distortionTerm`). Nothing if the points do
/// not fix all the terms.
std::optional<PolynomialFit> fitPolynomial(MappingModel model, const std::vector<FitPoint> &points);
} // namespace recognition
