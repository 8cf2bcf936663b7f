// SPDX-License-Identifier: MIT
// How long should the camera expose to show enough stars?
#pragma once

#include "recognition/extraction.h"

#include <cstddef>
#include <optional>

namespace assistant
{
/// The ends of the exposure sliders of both programs, microseconds.
inline constexpr double shortestExposure = 1000.0;
inline constexpr double longestExposure = 500000.0;
/// With so many recognised stars a longer exposure would not help.
inline constexpr std::size_t enoughStars = 15;

/// What a frame says about its exposure.
struct ExposureFacts {
    double microseconds = 0.0;
    bool recognised = false;
    std::size_t stars = 0; ///< recognised ones, else those that were found
    recognition::ExtractionStatus status = recognition::ExtractionStatus::Ok;
};

/// The exposure for the next frames; the frame's own if that is right or nothing would help.
double betterExposure(const ExposureFacts &facts);

/// Decides from frame to frame. A change counts from the second frame that was taken with it, since
/// the first may have begun before it.
/// A camera that does not follow within `patience` frames counts as having refused: that exposure
/// is not wanted again until the automatic is switched off and on.
class AutoExposure
{
public:
    void setEnabled(bool on);
    bool isEnabled() const { return enabled; }
    void consider(const ExposureFacts &facts);
    /// Microseconds; nothing while the exposure is to stay as it is.
    std::optional<double> wanted() const { return next; }

private:
    static constexpr int patience = 20; // frames

    bool enabled = true;
    std::optional<double> next;
    std::optional<double> refused;
    int waited = 0;       ///< frames for `next`
    double tooLong = 0.0; ///< an exposure that saturated the sky; 0: none
    double taken = 0.0;   ///< of the last frame
};

/// Passes each exposure on once: a camera that refuses it is not asked again in every frame.
class ExposureOrder
{
public:
    /// What to ask the camera for now, given what is wanted; nothing if it was asked already.
    std::optional<double> due(const std::optional<double> &wanted);
    /// Somebody else set the exposure.
    void forget() { ordered.reset(); }

private:
    std::optional<double> ordered;
};
} // namespace assistant
