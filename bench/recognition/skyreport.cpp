// SPDX-License-Identifier: MIT
// Is every sky with enough stars recognised?
#include "bench/recognition/bars.h"
#include "bench/recognition/randomsky.h"
#include "bench/recognition/reports.h"
#include "bench/recognition/statistics.h"
#include "recognition/extraction.h"
#include "recognition/recognise.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <opencv2/imgcodecs.hpp>
#include <string>

namespace
{
void printSky(const RandomSky &sky)
{
    const virtualsky::SkyState &state = sky.state;
    std::printf("%.0f,%.6f,%.6f,%.6f,%.6f,%.4f,%.4f,%.5f,%.5f,", *state.date, state.latitude,
                state.longitude, state.boltAltitude, state.boltAzimuth, state.axisX, state.axisY,
                state.roll, state.raAngle);
    std::printf("%.4f,%.3f,%.4f,%.4f,%.4f,%.3f,%.3f,%u,%u,", sky.seconds, sky.gain, state.clouds,
                state.moon, state.fwhm, state.seeing, state.skyMagnitude, state.hotPixels,
                state.channels);
}

void printHeader()
{
    std::printf("number,date,latitude,longitude,bolt_altitude,bolt_azimuth,axis_x,axis_y,roll,"
                "ra_angle,seconds,gain,clouds,moon,fwhm,seeing,sky_magnitude,hot_pixels,channels,"
                "above,extracted,recognised,matched,error_arcsec,squared_sigmas,extraction_ms,"
                "matching_ms\n");
}

constexpr double wrongPole = 60.0; // arcseconds: further off counts as not recognised
constexpr int fewestSparse = 12, enoughStars = 20;

/// How many stars are above 5 sigma, and whether the sky was recognised with its pole where it is.
struct SkyResult {
    int above;
    bool right;
};

SkyResult reportSky(int number, const RandomSky &sky, SkyPainter &painter)
{
    const cv::Mat frame = painter.frameOf(sky);
    recognition::RecognitionOptions options;
    options.utcSeconds = *sky.state.date;
    const double start = threadMilliseconds();
    const recognition::Extraction stars = recognition::extractStars(frame);
    const double extracted = threadMilliseconds();
    const recognition::Recognition found =
        recognition::recognise(stars.stars, frame.cols, frame.rows, options);
    const double end = threadMilliseconds();
    const virtualsky::Point pole = truthOf(sky).pole.value_or(virtualsky::Point{-1e4, -1e4});
    const double dx = found.pole.x - pole.x, dy = found.pole.y - pole.y;
    const bool recognised = found.status == recognition::RecognitionStatus::Recognised;
    const double error = std::hypot(dx, dy) * virtualsky::pixelScale;
    const int above = starsAbove(sky, 5.0);
    std::printf("%d,", number);
    printSky(sky);
    std::printf("%d,%zu,%d,%zu,%.3f,%.3f,%.3f,%.3f\n", above, stars.stars.size(), recognised,
                found.matched.size(), recognised ? error : -1.0,
                recognised ? squaredSigmas(dx, dy, found.poleCovariance) : -1.0, extracted - start,
                end - extracted);
    return {above, recognised && error < wrongPole};
}
} // namespace

bool reportSkies(int first, int count)
{
    printHeader();
    SkyPainter painter;
    Bars bars;
    for (int number = first; number < first + count; ++number) {
        const SkyResult result = reportSky(number, randomSky(std::uint64_t(number)), painter);
        if (result.above >= enoughStars)
            bars.atLeast(("sky " + std::to_string(number)).c_str(), result.right, 1.0);
    }
    return bars.kept();
}

bool reportSparseSkies(int first, int count)
{
    printHeader();
    SkyPainter painter;
    int tried = 0, right = 0;
    for (int number = first; tried < count; ++number) {
        const RandomSky sky = randomSky(std::uint64_t(number));
        const int above = starsAbove(sky, 5.0);
        if (above < fewestSparse || above >= enoughStars)
            continue;
        right += reportSky(number, sky, painter).right;
        ++tried;
    }
    Bars bars;
    bars.atLeast("percent of the sparse skies", 100.0 * right / count, 98.0);
    return bars.kept();
}

// 2026-11-20T20:00:00Z: pictures of one date can be recognised in one run.
constexpr double sameDate = 1795204800.0;

bool writeFrames(const char *folder, int count)
{
    const std::string place = std::string(folder) + "/";
    std::FILE *truth = std::fopen((place + "truth.csv").c_str(), "w");
    if (!truth)
        return false;
    std::fprintf(truth, "file,date,hemisphere,pole_x,pole_y\n");
    SkyPainter painter;
    bool written = true;
    for (int number = 0; number < count; ++number) {
        const bool south = number % 2 == 1;
        RandomSky sky = plainSky(std::uint64_t(number), south, 2026);
        sky.state.date = sameDate;
        const std::string file = "sky" + std::to_string(number) + ".png";
        written = cv::imwrite(place + file, painter.frameOf(sky)) && written;
        const virtualsky::Point pole = truthOf(sky).pole.value_or(virtualsky::Point{-1e4, -1e4});
        std::fprintf(truth, "%s,%.0f,%s,%.4f,%.4f\n", file.c_str(), *sky.state.date,
                     south ? "south" : "north", pole.x, pole.y);
    }
    return std::fclose(truth) == 0 && written;
}
