// SPDX-License-Identifier: MIT
// Which scale has a lens, and does it mirror the sky, by the stars that it shows?
#pragma once

#include <chrono>
#include <optional>

#include "framesources/preparation.h"
#include "framesources/settings.h"
#include "recognition/extraction.h"
#include "recognition/recognise.h"

namespace framesources
{
/// What the stars of a frame tell.
struct RecognisedLens {
    recognition::Extraction extraction;
    recognition::Recognition sky;
    /// Its stars are single pixels, here or at the program's scale, and were not softened.
    bool needsSoftening = false;
};

/// Recognises the stars of a frame as it is; if that fails, softened.
/// @param soften the settings say so: it is softened at once
/// @param scale that it will be resampled by: arcseconds a pixel, 0 = not to be changed; nothing =
/// the one that its stars show
RecognisedLens recogniseLens(const cv::Mat &grey, double utcSeconds, bool soften,
                             std::optional<double> scale = std::nullopt);

/// Settles what the settings leave open from the first frame whose stars are recognised, again when
/// frames of another sensor come. Not thread-safe.
class LensFinder
{
public:
    LensFinder(const SourceSettings &settings, Report reportLens);

    /// The lens as far as it is known.
    Lens lensFor(const NativeFrame &frame);

    /// Arcseconds a pixel of the sensor, unbinned; 0 = unknown, or not to be changed.
    double sensorScale() const;
    /// Whether a frame's stars still have to be recognised.
    bool isSearching() const { return isOpen() && !found; }

private:
    bool isOpen() const;
    void recognise(const NativeFrame &frame);

    const virtualsky::LensScale scale;
    const virtualsky::Mirrored mirrored;
    const bool soften;
    const Report report;
    std::optional<Lens> found; // its scale is that of the sensor's pixels
    cv::Size sensor;           // that it belongs to
    std::chrono::steady_clock::time_point tried;
};
} // namespace framesources
