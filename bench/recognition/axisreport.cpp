// SPDX-License-Identifier: MIT
// How far off is the RA axis from three frames, and how honest is the claim?
#include "bench/recognition/bars.h"
#include "bench/recognition/randomsky.h"
#include "bench/recognition/reports.h"
#include "bench/recognition/statistics.h"
#include "recognition/axis.h"
#include "recognition/extraction.h"
#include "recognition/mounterror.h"
#include "recognition/recognise.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace
{
constexpr int frames = 3;
constexpr double turn = 30.0;   // degrees between frames
constexpr double minutes = 2.0; // between frames, in which the sky moves

std::vector<recognition::Recognition> framesOf(RandomSky sky, SkyPainter &painter)
{
    std::vector<recognition::Recognition> found;
    const double start = *sky.state.date, angle = sky.state.raAngle;
    for (int i = 0; i < frames; ++i) {
        sky.state.date = start + 60.0 * minutes * i;
        sky.state.raAngle = angle + turn * i;
        sky.number += 1000003u;
        const cv::Mat frame = painter.frameOf(sky);
        recognition::RecognitionOptions options;
        options.utcSeconds = *sky.state.date;
        found.push_back(recognition::recognise(recognition::extractStars(frame).stars, frame.cols,
                                               frame.rows, options));
    }
    return found;
}

/// Errors of places or of altitude and azimuth, and how many are inside the ellipse they claim.
struct Errors {
    std::vector<double> arcseconds, sigmas;
    int inside = 0;

    void add(double arcsecondsOff, double squared)
    {
        arcseconds.push_back(arcsecondsOff);
        sigmas.push_back(std::sqrt(0.5 * squared)); // of one axis
        inside += squared <= twoSigmaEllipse;
    }
    double percentInside() const
    {
        return 100.0 * inside / std::max<double>(1.0, double(arcseconds.size()));
    }
};

void print(const char *pole, const char *what, int count, int lost, const Errors &errors,
           Bars &bars)
{
    std::printf("| %s | %s | %d | %d | %.2f\" | %.2f\" | %.2f\" | %.1f %% | %.2f |\n", pole, what,
                count, lost, rms(errors.arcseconds), median(errors.arcseconds),
                quantile(errors.arcseconds, 1.0), errors.percentInside(), rms(errors.sigmas));
    bars.atMost("nights lost", lost, 0.0);
    bars.atMost("arcseconds rms", rms(errors.arcseconds), 2.0);
    bars.atLeast("percent inside the ellipse", errors.percentInside(), 90.0);
    bars.atMost("percent inside the ellipse", errors.percentInside(), 98.0);
}

/// What the mount's error, altitude and azimuth, is off the truth.
void addMountError(const RandomSky &sky, const recognition::Recognition &frame,
                   const recognition::Axis &axis, Errors &errors)
{
    recognition::MountErrorOptions options;
    options.site = {sky.state.latitude, sky.state.longitude};
    const auto found = recognition::mountError(frame, axis, options);
    if (!found)
        return;
    const virtualsky::Truth truth = truthOf(sky);
    const double up = found->altitude.arcseconds - truth.altitudeError;
    const double east = found->azimuth.arcseconds - truth.azimuthError;
    errors.add(std::hypot(up, east), squaredSigmas(up, east, found->covariance));
}
} // namespace

bool reportAxes(int count)
{
    std::printf("| pole | what | nights | lost | rms | median | largest | inside the two-sigma "
                "ellipse | rms in standard errors |\n|---|---|---|---|---|---|---|---|---|\n");
    SkyPainter painter;
    Bars bars;
    for (const bool south : {false, true}) {
        Errors places, mountErrors;
        int lost = 0;
        for (int i = 0; i < count; ++i) {
            const RandomSky sky = plainSky(std::uint64_t(200000) + std::uint64_t(i), south, 2026);
            const std::vector<recognition::Recognition> found = framesOf(sky, painter);
            const recognition::Axis axis = recognition::axisOfTurns(found);
            if (axis.status != recognition::AxisStatus::Found) {
                ++lost;
                continue;
            }
            const virtualsky::Point truth = truthOf(sky).axis.value();
            const double dx = axis.place.x - truth.x, dy = axis.place.y - truth.y;
            places.add(std::hypot(dx, dy) * virtualsky::pixelScale,
                       squaredSigmas(dx, dy, axis.covariance));
            addMountError(sky, found.front(), axis, mountErrors);
        }
        const char *pole = south ? "south" : "north";
        print(pole, "axis", count, lost, places, bars);
        print(pole, "mount's error", count, count - int(mountErrors.arcseconds.size()), mountErrors,
              bars);
    }
    return bars.kept();
}
