// SPDX-License-Identifier: MIT
// How far off is the RA axis from three frames, and how honest is the claim?
#include "bench/recognition/randomsky.h"
#include "bench/recognition/reports.h"
#include "bench/recognition/statistics.h"
#include "recognition/axis.h"
#include "recognition/extraction.h"
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
} // namespace

void reportAxes(int count)
{
    std::printf("| pole | nights | lost | rms | median | largest | inside the two-sigma ellipse "
                "| rms in standard errors |\n|---|---|---|---|---|---|---|---|\n");
    SkyPainter painter;
    for (const bool south : {false, true}) {
        std::vector<double> errors, sigmas;
        int lost = 0, inside = 0;
        for (int i = 0; i < count; ++i) {
            const RandomSky sky = plainSky(std::uint64_t(200000) + std::uint64_t(i), south, 2026);
            const recognition::Axis axis = recognition::axisOfTurns(framesOf(sky, painter));
            if (axis.status != recognition::AxisStatus::Found) {
                ++lost;
                continue;
            }
            const virtualsky::Point truth = truthOf(sky).axis.value();
            const double dx = axis.place.x - truth.x, dy = axis.place.y - truth.y;
            errors.push_back(std::hypot(dx, dy) * virtualsky::pixelScale);
            const double squared = squaredSigmas(dx, dy, axis.covariance);
            sigmas.push_back(std::sqrt(0.5 * squared)); // of one axis
            inside += squared <= twoSigmaEllipse;
        }
        std::printf("| %s | %d | %d | %.2f\" | %.2f\" | %.2f\" | %.1f %% | %.2f |\n",
                    south ? "south" : "north", count, lost, rms(errors), median(errors),
                    quantile(errors, 1.0),
                    100.0 * inside / std::max<double>(1.0, double(errors.size())), rms(sigmas));
    }
}
