// SPDX-License-Identifier: MIT
// Which candidates of a frame are stars, and how are they measured?
#pragma once

#include <opencv2/core.hpp>
#include <optional>
#include <vector>

#include "recognition/detection.h"
#include "recognition/skybackground.h"
#include "recognition/star.h"

namespace recognition
{
constexpr double minFwhm = 0.7; ///< pixels; narrower is a hot pixel

struct MeasuredStar {
    DetectedStar star;
    double elongation; ///< length over width
};

/// Stars of one frame, collected candidate by candidate. Bright ones are measured each with its own
/// width, faint ones with that of the frame, once it is known.
class MeasuredStars
{
public:
    /// @param bin pixels of the frame along one of the background's
    MeasuredStars(const cv::Mat &frame, const SkyBackground &background, int bin);

    /// Measures what was found in a picture, brightest first, until there are `most` stars. Those
    /// that were known before are not measured again.
    /// @param searchBin pixels of the frame along one of that picture's
    void add(const Detection &found, int searchBin, double minSnr, std::size_t most);

    const std::vector<MeasuredStar> &all() const { return stars; }
    /// Median of the brighter ones' widths; 0 without stars.
    double fwhm() const;
    /// Median of the brighter ones' elongations; 1 without stars.
    double elongation() const;
    /// Whether the width is that of bright stars, not of what the noise makes of faint ones.
    bool isWidthSure() const { return frameSigma > 0.0; }
    /// Leaves out what is too narrow, too wide or too long beside the frame's other stars and what
    /// is within another one; brightest first.
    void sift();

private:
    struct Way; // how one candidate is measured

    Way wayFor(const Candidate &candidate, int searchBin) const;
    std::optional<MeasuredStar> measure(const Candidate &candidate, const Way &way,
                                        double noiseScale, double minSnr) const;
    bool known(double x, double y) const;
    void learnWidth();

    const cv::Mat &frame;
    const SkyBackground &background;
    int bin;
    double frameSigma = 0.0; // pixels, 0 as long as it is not known
    std::vector<MeasuredStar> stars;
};

/// Whether a star with this centre has a flat top.
/// @param values background 0; @param brightest of any channel, as in the frame
bool isSaturated(const cv::Mat1f &values, double brightest, double fullScale, double noise);
} // namespace recognition
