// SPDX-License-Identifier: MIT
// Do random lists and random frames do any harm, and is anything recognised in them?
#include "bench/recognition/randomframes.h"
#include "bench/recognition/randomlists.h"
#include "bench/recognition/reports.h"
#include "bench/recognition/statistics.h"
#include "recognition/extraction.h"
#include "recognition/recognise.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <optional>

namespace
{
using recognition::DetectedStar;
using recognition::Recognition;
using recognition::RecognitionStatus;

constexpr int progressStep = 10000; // numbers between two lines of progress
constexpr double date = 1795204800.0;

struct Row {
    long tried = 0, tooFew = 0, failures = 0; // failures: recognised, or stars that cannot be
    double milliseconds = 0.0;                // of the thread

    void add(const Recognition &found, double took)
    {
        ++tried;
        tooFew += found.status == RecognitionStatus::TooFewStars;
        failures += found.status == RecognitionStatus::Recognised;
        milliseconds += took;
    }
};

void print(const std::string &what, const Row &row)
{
    std::printf("| %s | %ld | %ld | %ld | %.2f ms |\n", what.c_str(), row.tried, row.tooFew,
                row.failures, row.milliseconds / std::max<double>(1.0, double(row.tried)));
}

void printProgress(const char *what, int first, int next, long failures)
{
    std::fprintf(stderr, "%s %d to %d: %ld failures\n", what, first, next - 1, failures);
}

bool isPossible(const DetectedStar &star, const cv::Mat &frame)
{
    return star.x > 0 && star.y > 0 && star.x < frame.cols - 1 && star.y < frame.rows - 1 &&
           star.flux > 0 && star.snr > 0 && star.fwhm > 0 && std::isfinite(star.flux) &&
           std::isfinite(star.snr) && std::isfinite(star.fwhm);
}

long fuzzLists(int first, int count)
{
    std::array<Row, listKinds> rows;
    long failures = 0;
    for (int number = first; number < first + count; ++number) {
        const RandomList list = randomList(std::uint64_t(number));
        const double start = threadMilliseconds();
        const Recognition found =
            recognition::recognise(list.stars, list.width, list.height, list.options);
        rows[std::size_t(list.kind)].add(found, threadMilliseconds() - start);
        if (found.status == RecognitionStatus::Recognised) {
            ++failures;
            std::fprintf(stderr, "list %d: %zu of %zu stars, chance %g\n", number,
                         found.matched.size(), list.stars.size(), found.chance);
        }
        if ((number + 1) % progressStep == 0)
            printProgress("lists", first, number + 1, failures);
    }
    for (std::size_t kind = 0; kind < rows.size(); ++kind)
        print("lists, " + nameOf(ListKind(int(kind))), rows[kind]);
    return failures;
}

long fuzzFrames(int first, int count)
{
    Row row;
    for (int number = first; number < first + count; ++number) {
        const cv::Mat frame = randomFrame(std::uint64_t(number));
        recognition::RecognitionOptions options;
        options.utcSeconds = date;
        const double start = threadMilliseconds();
        const recognition::Extraction stars = recognition::extractStars(frame);
        const Recognition found =
            recognition::recognise(stars.stars, frame.cols, frame.rows, options);
        row.add(found, threadMilliseconds() - start);
        const bool possible =
            std::all_of(stars.stars.begin(), stars.stars.end(),
                        [&frame](const DetectedStar &star) { return isPossible(star, frame); });
        row.failures += !possible;
        if (!possible || found.status == RecognitionStatus::Recognised)
            std::fprintf(stderr, "frame %d: %zu of %zu stars, chance %g, %s\n", number,
                         found.matched.size(), stars.stars.size(), found.chance,
                         possible ? "recognised" : "impossible stars");
        if ((number + 1) % progressStep == 0)
            printProgress("frames", first, number + 1, row.failures);
    }
    print("frames", row);
    return row.failures;
}
} // namespace

bool reportFuzz(int first, int lists, int frames)
{
    std::printf("| from number %d | tried | too few stars | failures | mean time |\n"
                "|---|---|---|---|---|\n",
                first);
    const long failures = fuzzLists(first, lists) + fuzzFrames(first, frames);
    return failures == 0;
}
