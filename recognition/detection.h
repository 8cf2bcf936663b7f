// SPDX-License-Identifier: MIT
// Which peaks of a picture with unit noise may be stars?
#pragma once

#include <opencv2/core.hpp>
#include <optional>
#include <vector>

namespace recognition
{
struct Candidate {
    double x, y;  ///< pixels of the frame
    double sigma; ///< rough, pixels of the frame
    double peak;  ///< of the smoothed picture, multiples of its noise
};

enum class DetectionResult { Done, TooMuchLight };

/// What a search in one picture gives.
struct Detection {
    DetectionResult result = DetectionResult::Done;
    std::vector<Candidate> candidates; ///< the highest peak first
    double noiseScale = 1.0; ///< the smoothed noise over that of independent pixels, at least 1
};

/// Replaces isolated pixels, which no star makes, by the mean of their neighbours.
/// @param normalised background 0, noise 1
void removeHotPixels(cv::Mat1f &normalised);

/// The same where the noise of a pixel is `noise`.
void replaceHotPixels(cv::Mat1f &values, float noise);

/// Smooths and searches.
/// @param normalised background 0, noise 1; 0 where nothing is shown
/// @param blankShare part of the pixels that show nothing, which tell nothing about the noise
/// @param bin pixels of the frame along one of the picture's
/// @param threshold of a peak in the smoothed picture, multiples of that picture's noise
Detection detect(const cv::Mat1f &normalised, double blankShare, int bin, double threshold);

/// 2 x 2 pixels become one; noise 1 stays noise 1.
cv::Mat1f halved(const cv::Mat1f &normalised);
} // namespace recognition
