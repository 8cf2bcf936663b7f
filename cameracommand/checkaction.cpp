// SPDX-License-Identifier: MIT
// The lens by a frame's stars, and its values into the sky file.
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <optional>

#include "cameracommand/actions.h"
#include "cameracommand/grabbing.h"
#include "cameracommand/lenswriting.h"
#include "framesources/lensfinder.h"
#include "pictures/fitting.h"
#include "pictures/grey.h"
#include "recognition/extraction.h"
#include "recognition/recognise.h"
#include "virtualcamera/skyfile.h"
#include "virtualcamera/skywatch.h"

namespace
{
constexpr int tries = 5; // frames, until the stars of one are recognised

struct Checked {
    framesources::RecognisedLens lens;
    int binning = 1;
};

/// As the camera sees it, whatever the settings say of softening.
Checked checked(const framesources::NativeFrame &frame, const CameraCommandLine &wishes)
{
    const double date = wishes.date.value_or(frame.date.value_or(double(std::time(nullptr))));
    return {framesources::recogniseLens(pictures::greyOf(frame.pixels, frame.mosaic), date, false),
            frame.binning};
}

void print(const Checked &found)
{
    const recognition::Recognition &sky = found.lens.sky;
    std::printf("scale: %.3f arcseconds a pixel%s\n", sky.scale / found.binning,
                found.binning > 1 ? " of the sensor, unbinned" : "");
    if (sky.scale / found.binning > pictures::programScale * pictures::maxEnlargement)
        std::printf("too coarse for the star templates: frames are enlarged %.0f times at most\n",
                    pictures::maxEnlargement);
    std::printf("mirrored: %s\n", sky.mirrored ? "true" : "false");
    std::printf("roll: %.1f degrees\n", sky.rollDegrees);
    std::printf("hemisphere: %s\n",
                sky.hemisphere == recognition::Hemisphere::North ? "north" : "south");
    std::printf("pole: %.1f, %.1f\n", sky.pole.x, sky.pole.y);
    std::printf("stars: %zu found, %zu recognised\n", found.lens.extraction.stars.size(),
                sky.matched.size());
    std::printf("focus: stars are %.1f pixels wide\n", found.lens.extraction.fwhm);
    if (found.lens.needsSoftening)
        std::printf("stars are single pixels at the scale of the templates: soften = true\n");
}

int keepValues(const Checked &found, const CameraCommandLine &wishes,
               const std::optional<framesources::SourceSettings> &source)
{
    const std::string path = virtualsky::skyFilePath();
    const MeasuredLens lens{found.lens.sky.scale / found.binning, found.lens.sky.mirrored,
                            found.lens.needsSoftening};
    virtualsky::SkyWatch watch(path, [](const std::string &) {}); // its faults were said before
    const virtualsky::Source checked = source ? source->address.source : virtualsky::Source::Sky;
    const std::string reason = reasonToLeave(wishes.writing, checked, watch.current(), lens);
    if (reason.empty()) {
        const bool isWritten = writeLens(path, lens);
        if (isWritten && !std::getenv("QUORVANDEL_SKY")) // the file is in a folder for one session
            std::printf(
                "This file lasts until you log out: QUORVANDEL_SKY names one that stays.\n");
        return isWritten ? succeeded : failed;
    }
    std::printf("%s is left as it is: %s\n", path.c_str(), reason.c_str());
    return succeeded;
}
} // namespace

int checkLens(const CameraCommandLine &wishes)
{
    const auto source = chosenSource(wishes);
    const auto camera = openCamera(wishes, source);
    Checked found;
    for (int time = 0; camera && time < tries; ++time) {
        const auto frame = awaitFrame(*camera, wishes);
        if (!frame)
            return failed;
        found = checked(*frame, wishes);
        if (found.lens.sky.status == recognition::RecognitionStatus::Recognised)
            break;
    }
    if (!camera)
        return failed;
    if (found.lens.sky.status != recognition::RecognitionStatus::Recognised) {
        const std::string frame = recognition::reasonOf(found.lens.extraction);
        std::printf("not recognised: %s\n",
                    (frame.empty() ? recognition::reason(found.lens.sky) : frame).c_str());
        return failed;
    }
    print(found);
    return keepValues(found, wishes, source);
}
