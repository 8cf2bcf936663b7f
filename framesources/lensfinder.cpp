// SPDX-License-Identifier: MIT
// The lens by recognition of the pole's stars.
#include "framesources/lensfinder.h"

#include <cstdio>

#include "pictures/grey.h"

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

RecognisedLens recogniseLens(const cv::Mat &grey, double utcSeconds, bool soften,
                             std::optional<double> scale)
{
    recognition::RecognitionOptions options;
    options.utcSeconds = utcSeconds;
    options.minScale = finestScale;
    options.maxScale = coarsestScale;
    const auto stars = [&options](const cv::Mat &picture) {
        RecognisedLens out;
        out.extraction = recognition::extractStars(picture);
        out.sky = recognition::recognise(out.extraction.stars, picture.cols, picture.rows, options);
        return out;
    };
    RecognisedLens plain = stars(soften ? softened(grey) : grey);
    const bool isRecognised = plain.sky.status == recognition::RecognitionStatus::Recognised;
    if (soften)
        return plain;
    if (isRecognised) {
        plain.needsSoftening =
            needsSoftening(plain.extraction.fwhm, grey.size(), scale.value_or(plain.sky.scale));
        return plain;
    }
    RecognisedLens other = stars(softened(grey));
    other.needsSoftening = other.sky.status == recognition::RecognitionStatus::Recognised;
    return other.needsSoftening ? other : plain;
}

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
    std::optional<double> used;
    if (scale.kind != LensScale::Kind::Auto)
        used = sensorScale() * frame.binning;
    const RecognisedLens lens = recogniseLens(pictures::greyOf(frame.pixels, frame.mosaic),
                                              frame.date.value_or(secondsNow()), soften, used);
    const recognition::Recognition &sky = lens.sky;
    if (sky.status != recognition::RecognitionStatus::Recognised)
        return;
    found = Lens{sky.scale / frame.binning, sky.mirrored, lens.needsSoftening};
    char text[150];
    std::snprintf(text, sizeof text, "the stars show %.2f arcseconds a pixel, %s%s", found->scale,
                  sky.mirrored ? "mirrored" : "not mirrored",
                  lens.needsSoftening ? "; narrow as they are, they are softened" : "");
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
    lens.soften = soften || (found && found->soften);
    lens.scale = sensorScale() * frame.binning;
    lens.mirrored =
        mirrored == Mirrored::Auto ? found && found->mirrored : mirrored == Mirrored::True;
    return lens;
}
} // namespace framesources
