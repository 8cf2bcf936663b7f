// SPDX-License-Identifier: MIT
// Which stars are in a frame, how bright and how sharp, and if there are none, why?
//
// The background follows Source Extractor (Bertin and Arnouts 1996, A&AS 117, 393) by way of SEP
// (Barbary 2016, JOSS 1, 58); stars are peaks of the smoothed frame (Stetson 1987, PASP 99, 191);
// centres and widths are adaptive Gaussian-weighted moments (Bernstein
// and Jarvis 2002, AJ 123, 583).
#pragma once

#include <opencv2/core.hpp>
#include <optional>
#include <string>
#include <vector>

#include "recognition/star.h"

namespace recognition
{
/// What a frame is good for. After BadFrame, TooLarge, Black and NoSky there are no stars; after
/// the others those that there are.
enum class ExtractionStatus {
    Ok,
    BadFrame,     ///< empty, below 32 pixels a side, not 8 or 16 bit, not 1 or 3 channels
    TooLarge,     ///< above 24 megapixels
    Black,        ///< no light at all: a cap on the lens, no exposure
    SaturatedSky, ///< the background is near full scale, and the stars are too few or have no shape
    NoSky,        ///< structure everywhere: not the sky at night
    OutOfFocus,   ///< `fwhm` above `ExtractionOptions::widestFwhm`
    Trailed,      ///< most stars are elongated, `elongation` times as long as wide
    TooFewStars   ///< fewer than `ExtractionOptions::minStars`
};

struct ExtractionOptions {
    int maxStars = 200;       ///< the brightest are kept
    int minStars = 6;         ///< below it the status is TooFewStars
    double minSnr = 4.5;      ///< fainter ones are left out
    double widestFwhm = 10.0; ///< pixels
};

struct Extraction {
    std::vector<DetectedStar> stars; ///< brightest first
    double background = 0.0; ///< median of the sky, values of the frame, mean of its channels
    /// One sigma of a pixel, in the same values: the mean of its channels, rounding included.
    double noise = 0.0;
    double fwhm = 0.0;       ///< median of the brighter stars, pixels; 0 without stars
    double elongation = 1.0; ///< median of the brighter stars: length over width
    ExtractionStatus status = ExtractionStatus::BadFrame;
};

/// Finds the stars of a frame of 8 or 16 bit (unsigned), 1 or 3 channels, 32 pixels a side to 24
/// megapixels, rows padded or not. Single hot pixels, trails, borders without light and gradients
/// are left out. Never throws for a frame of any kind. Safe from any number of threads.
/// Stars nearer to the edge than their width are left out, for their centres would be wrong.
Extraction extractStars(const cv::Mat &frame, const ExtractionOptions &options = {});

/// Measures the brightest star within `radius` pixels of a place.
/// @param x, y pixels, as in DetectedStar
/// @param radius pixels, 2 to 64
/// @return nothing if no star there reaches a signal-to-noise ratio of 5, if it lies at the
/// window's or the frame's edge, or if the frame or the radius is none that can be measured
std::optional<DetectedStar> measureStar(const cv::Mat &frame, double x, double y, int radius);

/// A sentence that says what is wrong and what helps, in English; empty after Ok.
std::string reasonOf(const Extraction &extraction);
} // namespace recognition
