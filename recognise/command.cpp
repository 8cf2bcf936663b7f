// SPDX-License-Identifier: MIT
// Options to frame to stars to sky.
#include "recognise/command.h"

#include <algorithm>
#include <chrono>

namespace
{
constexpr double scaleMargin = 1.01; // triangles of stars miss the scale by some thousandths
}

PictureReport recognisePicture(const std::string &name, const PictureFile &picture,
                               const CommandLine &wishes, double now)
{
    PictureReport report;
    report.file = name;
    report.complaint = picture.complaint;
    if (!report.complaint.empty())
        return report;
    recognition::RecognitionOptions options;
    options.utcSeconds = wishes.date.value_or(picture.date.value_or(now));
    options.hemisphere = wishes.hemisphere;
    if (wishes.scale) {
        options.minScale = wishes.scale->first / scaleMargin;
        options.maxScale = std::min(wishes.scale->second * scaleMargin, recognition::coarsestScale);
    }
    using Clock = std::chrono::steady_clock;
    const Clock::time_point start = Clock::now();
    report.extraction = recognition::extractStars(picture.pixels);
    report.recognition = recognition::recognise(report.extraction.stars, picture.pixels.cols,
                                                picture.pixels.rows, options);
    report.seconds = std::chrono::duration<double>(Clock::now() - start).count();
    return report;
}
