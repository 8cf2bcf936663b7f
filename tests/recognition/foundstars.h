// SPDX-License-Identifier: MIT
// What do the tests of the extraction share? Its status as a column, and what holds for every star.
#pragma once

#include "recognition/extraction.h"

#include <QMetaType>
#include <algorithm>
#include <cmath>

Q_DECLARE_METATYPE(recognition::ExtractionStatus)

/// Whether every star lies inside the frame and its figures are finite and positive.
inline bool isSane(const recognition::Extraction &found, const cv::Mat &frame)
{
    const auto isSaneStar = [&frame](const recognition::DetectedStar &star) {
        return star.x > 0 && star.y > 0 && star.x < frame.cols - 1 && star.y < frame.rows - 1 &&
               std::isfinite(star.flux) && star.flux > 0 && star.snr > 0 && star.fwhm > 0 &&
               std::isfinite(star.snr) && std::isfinite(star.fwhm);
    };
    return std::all_of(found.stars.begin(), found.stars.end(), isSaneStar);
}
