// SPDX-License-Identifier: MIT
// How long do extraction, matching, whole frames and following take, in one thread?
#include "bench/recognition/bars.h"
#include "bench/recognition/paintedsky.h"
#include "bench/recognition/randomsky.h"
#include "bench/recognition/reports.h"
#include "bench/recognition/statistics.h"
#include "recognition/extraction.h"
#include "recognition/follower.h"
#include "recognition/recognise.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>
#include <opencv2/imgproc.hpp>

namespace
{
using recognition::Extraction;
using recognition::Recognition;
using recognition::RecognitionOptions;
using recognition::RecognitionStatus;

struct Timings {
    std::vector<double> extraction, matching, blind, knownScale, following;
    int lost = 0;
};

double timeOf(const std::function<void()> &work)
{
    const double start = threadMilliseconds();
    work();
    return threadMilliseconds() - start;
}

RecognitionOptions optionsOf(const RandomSky &sky)
{
    RecognitionOptions options;
    options.utcSeconds = *sky.state.date;
    return options;
}

void measureFrame(RandomSky sky, SkyPainter &painter, Timings &times)
{
    const cv::Mat frame = painter.frameOf(sky);
    const RecognitionOptions blind = optionsOf(sky);
    RecognitionOptions known = blind;
    known.minScale = virtualsky::pixelScale / 1.05;
    known.maxScale = virtualsky::pixelScale * 1.05;
    Extraction stars;
    times.extraction.push_back(timeOf([&] { stars = recognition::extractStars(frame); }));
    const auto match = [&](const RecognitionOptions &options) {
        times.lost += recognition::recognise(stars.stars, frame.cols, frame.rows, options).status !=
                      RecognitionStatus::Recognised;
    };
    times.matching.push_back(timeOf([&] { match(blind); }));
    times.blind.push_back(times.extraction.back() + times.matching.back());
    times.knownScale.push_back(times.extraction.back() + timeOf([&] { match(known); }));

    recognition::FollowerOptions options;
    options.recognition = blind;
    recognition::Follower follower(options);
    follower.follow(frame, *sky.state.date);
    for (int i = 1; i <= 3; ++i) {
        sky.state.date = *sky.state.date + 0.5;
        sky.number += 7919u;
        const cv::Mat next = painter.frameOf(sky);
        times.following.push_back(timeOf([&] { follower.follow(next, *sky.state.date); }));
        times.lost += !follower.followed();
    }
}

std::vector<double> largeFrames(int count, int &lost)
{
    std::vector<double> times;
    for (int i = 0; i < count; ++i) {
        PaintedSky sky;
        sky.width = 4000;
        sky.height = 3000;
        sky.scale = 10.0;
        sky.south = i % 2 == 1;
        sky.offCentre = 0.3 * (i % 10);
        sky.direction = 37.0 * i;
        sky.roll = 61.0 * i;
        sky.seed = unsigned(i + 1);
        const cv::Mat frame = paintSky(sky);
        RecognitionOptions options;
        options.utcSeconds = sky.utcSeconds;
        Recognition found;
        times.push_back(timeOf([&] {
            found = recognition::recognise(recognition::extractStars(frame).stars, frame.cols,
                                           frame.rows, options);
        }));
        lost += found.status != RecognitionStatus::Recognised;
    }
    return times;
}

void print(const char *what, const std::vector<double> &times, double bar, Bars &bars)
{
    std::printf("| %s | %zu | %.1f ms | %.1f ms |", what, times.size(), median(times),
                quantile(times, 0.95));
    if (bar <= 0.0) {
        std::printf(" |\n");
        return;
    }
    std::printf(" %.0f ms |\n", bar);
    bars.atMost(what, median(times), bar);
}
} // namespace

bool reportSpeeds(int count)
{
    Bars bars;
    cv::setNumThreads(1);
    SkyPainter painter;
    Timings times;
    Timings warm;
    measureFrame(plainSky(299999, false, 2026), painter, warm);
    measureFrame(plainSky(299999, true, 2026), painter, warm);
    for (int i = 0; i < count; ++i)
        measureFrame(plainSky(std::uint64_t(300000) + std::uint64_t(i), i % 2 == 1, 2026), painter,
                     times);
    std::printf("| one thread, its own processor time | runs | median | 95 of 100 | bar |\n"
                "|---|---|---|---|---|\n");
    print("extraction alone, 1280 x 960", times.extraction, 0.0, bars);
    print("matching alone, star list given, blind", times.matching, 5.0, bars);
    print("a frame of 1280 x 960, blind", times.blind, 30.0, bars);
    print("the same, scale known to 5 %", times.knownScale, 15.0, bars);
    print("the same, following", times.following, 3.0, bars);
    print("a frame of 12 megapixels, blind", largeFrames(std::max(5, count / 10), times.lost),
          250.0, bars);
    std::printf("\nNot recognised or not followed: %d\n", times.lost);
    bars.atMost("frames not recognised or not followed", times.lost, 0.0);
    return bars.kept();
}
