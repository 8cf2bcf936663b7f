// SPDX-License-Identifier: MIT
// How far off is the pole, and how honest is the claim?
#include "bench/recognition/bars.h"
#include "bench/recognition/randomsky.h"
#include "bench/recognition/reports.h"
#include "bench/recognition/statistics.h"
#include "recognition/extraction.h"
#include "recognition/recognise.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace
{
struct PoleErrors {
    std::vector<double> arcseconds, squared;
    int lost = 0;
};

PoleErrors polesOf(bool south, int year, int count)
{
    PoleErrors out;
    SkyPainter painter;
    for (int i = 0; i < count; ++i) {
        const RandomSky sky = plainSky(std::uint64_t(100000) + std::uint64_t(i), south, year);
        const cv::Mat frame = painter.frameOf(sky);
        recognition::RecognitionOptions options;
        options.utcSeconds = *sky.state.date;
        const recognition::Recognition found = recognition::recognise(
            recognition::extractStars(frame).stars, frame.cols, frame.rows, options);
        if (found.status != recognition::RecognitionStatus::Recognised) {
            ++out.lost;
            continue;
        }
        const virtualsky::Point pole = truthOf(sky).pole.value();
        const double dx = found.pole.x - pole.x, dy = found.pole.y - pole.y;
        out.arcseconds.push_back(std::hypot(dx, dy) * virtualsky::pixelScale);
        out.squared.push_back(squaredSigmas(dx, dy, found.poleCovariance));
    }
    return out;
}

double partBelow(const std::vector<double> &values, double limit)
{
    const auto n = std::count_if(values.begin(), values.end(),
                                 [limit](double value) { return value <= limit; });
    return 100.0 * double(n) / std::max<double>(1.0, double(values.size()));
}
} // namespace

bool reportPoles(int count)
{
    Bars bars;
    std::printf("| pole | year | skies | lost | rms | median | largest | inside the two-sigma "
                "ellipse |\n|---|---|---|---|---|---|---|---|\n");
    for (const bool south : {false, true})
        for (const int year : {2026, 2040}) {
            const PoleErrors errors = polesOf(south, year, count);
            const double inside = partBelow(errors.squared, twoSigmaEllipse);
            std::printf("| %s | %d | %d | %d | %.2f\" | %.2f\" | %.2f\" | %.1f %% |\n",
                        south ? "south" : "north", year, count, errors.lost, rms(errors.arcseconds),
                        median(errors.arcseconds), quantile(errors.arcseconds, 1.0), inside);
            bars.atMost("skies lost", errors.lost, 0.0);
            bars.atMost("arcseconds rms of the pole", rms(errors.arcseconds), 1.0);
            bars.atLeast("percent inside the ellipse", inside, 90.0);
            bars.atMost("percent inside the ellipse", inside, 98.0);
        }
    return bars.kept();
}
