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

LensFinder::LensFinder(LensScale lensScale, Mirrored lensMirrored, Report reportLens)
    : scale(lensScale), mirrored(lensMirrored), report(std::move(reportLens))
{
}

bool LensFinder::isOpen() const
{
    return scale.kind == LensScale::Kind::Auto || mirrored == Mirrored::Auto;
}

void LensFinder::recognise(const NativeFrame &frame)
{
    const cv::Mat grey = pictures::greyOf(frame.pixels, frame.mosaic);
    recognition::RecognitionOptions options;
    options.utcSeconds = frame.date.value_or(secondsNow());
    options.leastScale = finestScale;
    options.greatestScale = coarsestScale;
    const recognition::Recognition sky = recognition::recognise(
        recognition::extractStars(grey).stars, grey.cols, grey.rows, options);
    if (sky.status != recognition::RecognitionStatus::Recognised)
        return;
    found = Lens{sky.scale, sky.mirrored};
    char text[100];
    std::snprintf(text, sizeof text, "the stars show %.2f arcseconds a pixel, %s", sky.scale,
                  sky.mirrored ? "mirrored" : "not mirrored");
    report(text);
}

Lens LensFinder::lensFor(const NativeFrame &frame)
{
    if (frame.pixels.size() != size)
        found.reset();
    const bool first = frame.pixels.size() != size;
    size = frame.pixels.size();
    if (isOpen() && !found && (first || Clock::now() - tried > pause)) {
        recognise(frame);
        tried = Clock::now();
    }
    Lens lens;
    if (scale.kind == LensScale::Kind::Given)
        lens.scale = scale.arcseconds;
    else if (scale.kind == LensScale::Kind::Auto && found)
        lens.scale = found->scale;
    lens.mirrored =
        mirrored == Mirrored::Auto ? found && found->mirrored : mirrored == Mirrored::True;
    return lens;
}
} // namespace framesources
