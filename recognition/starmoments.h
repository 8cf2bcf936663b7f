// SPDX-License-Identifier: MIT
// Where is a star's centre in a window, how wide and how long is it, how much light is in it?
#pragma once

#include <opencv2/core.hpp>
#include <optional>

namespace recognition
{
/// Adaptive Gaussian-weighted moments, in pixels of the window.
struct Moments {
    double x, y;
    double flux;        ///< as of a Gaussian star of this width
    double weightSigma; ///< of the weight that was used
    double variance;    ///< mean of the two axes, with the pixel's own 1/12; may be below 0
    double elongation;  ///< length over width, 1 to 10
};

struct MomentsOptions {
    double sigma;    ///< to begin with, pixels
    bool fixedSigma; ///< the weight keeps its width
    double maxSigma; ///< pixels
    double maxShift; ///< pixels from the start; beyond it there is nothing to be found
};

/// @param values background 0
/// @return nothing if there is no light or the centre walks off
std::optional<Moments> measureMoments(const cv::Mat1f &values, double x, double y,
                                      const MomentsOptions &options);

/// Standard error of `Moments::flux` from independent noise of 1 a pixel.
double fluxNoise(const Moments &moments);

/// Full width at half maximum of a Gaussian of this variance, less the pixel's own width.
double fwhmOf(double variance);

/// The other way round: sigma with the pixel's own width.
double sigmaOf(double fwhm);
} // namespace recognition
