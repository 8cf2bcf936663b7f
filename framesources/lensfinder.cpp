// SPDX-License-Identifier: MIT
// The lens by recognition of the pole's stars.
#include "framesources/lensfinder.h"

#include <cstdio>

#include "pictures/grey.h"
#include "recognition/extraction.h"
#include "recognition/recognise.h"

namespace framesources
{
namespace
{
using Clock = std::chrono::steady_clock;
using virtualsky::LensScale;
using virtualsky::Mirrored;
constexpr auto pause = std::chrono::milliseconds(300);     // between two tries in vain
constexpr double finestScale = 0.5, coarsestScale = 200.0; // arcseconds a pixel

double secondsNow()
{
    return std::chrono::duration<double>(std::chrono::system_clock::now().time_since_epoch())
        .count();
}
} // namespace

LensFinder::LensFinder(const SourceSettings &settings, Report reportLens)
    : scale(settings.scale),
      mirrored(settings.mirrored),
      soften(settings.soften),
      report(std::move(reportLens))
{
}

bool LensFinder::isOpen() const
{
    return scale.kind == LensScale::Kind::Auto || mirrored == Mirrored::Auto;
}

void LensFinder::recognise(const NativeFrame &frame)
{
    const cv::Mat plain = pictures::greyOf(frame.pixels, frame.mosaic);
    const cv::Mat grey = soften ? softened(plain) : plain;
    recognition::RecognitionOptions options;
    options.utcSeconds = frame.date.value_or(secondsNow());
    options.leastScale = finestScale;
    options.greatestScale = coarsestScale;
    const recognition::Recognition sky = recognition::recognise(
        recognition::extractStars(grey).stars, grey.cols, grey.rows, options);
    if (sky.status != recognition::RecognitionStatus::Recognised)
        return;
    found = Lens{sky.scale / frame.binning, sky.mirrored};
    char text[100];
    std::snprintf(text, sizeof text, "the stars show %.2f arcseconds a pixel, %s", found->scale,
                  sky.mirrored ? "mirrored" : "not mirrored");
    report(text);
}

double LensFinder::sensorScale() const
{
    if (scale.kind == LensScale::Kind::Given)
        return scale.arcseconds;
    return scale.kind == LensScale::Kind::Auto && found ? found->scale : 0.0;
}

Lens LensFinder::lensFor(const NativeFrame &frame)
{
    const bool other = frame.sensor != sensor;
    sensor = frame.sensor;
    if (other)
        found.reset();
    if (isSearching() && (other || Clock::now() - tried > pause)) {
        recognise(frame);
        tried = Clock::now();
    }
    Lens lens;
    lens.soften = soften;
    lens.scale = sensorScale() * frame.binning;
    lens.mirrored =
        mirrored == Mirrored::Auto ? found && found->mirrored : mirrored == Mirrored::True;
    return lens;
}
} // namespace framesources
