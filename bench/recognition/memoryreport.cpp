// SPDX-License-Identifier: MIT
// How much memory is in use beside the frame, and does it grow?
#include "bench/recognition/randomsky.h"
#include "bench/recognition/reports.h"
#include "recognition/extraction.h"
#include "recognition/follower.h"
#include "recognition/recognise.h"

#include <cstdio>
#include <malloc.h>
#include <string>
#include <vector>

namespace
{
/// A line of /proc/self/status, megabytes.
double statusMegabytes(const std::string &name)
{
    std::FILE *file = std::fopen("/proc/self/status", "r");
    char line[200];
    long kilobytes = 0;
    while (file && std::fgets(line, sizeof line, file))
        if (std::string(line).compare(0, name.size(), name) == 0)
            std::sscanf(line + name.size(), ": %ld", &kilobytes);
    if (file)
        std::fclose(file);
    return double(kilobytes) / 1024.0;
}

/// Forgets the largest size so far, so that VmHWM is that from now on.
void resetPeak()
{
    if (std::FILE *file = std::fopen("/proc/self/clear_refs", "w")) {
        std::fputs("5", file);
        std::fclose(file);
    }
}
} // namespace

void reportMemory(int count, MemoryOf what)
{
    // A follower meets a frame again, so that it follows; the others are searched blind.
    const bool following = what == MemoryOf::Following;
    const int differentFrames = following ? 1 : 16;
    const cv::Rect middle(virtualsky::sensorWidth / 4, virtualsky::sensorHeight / 4,
                          virtualsky::sensorWidth / 2, virtualsky::sensorHeight / 2);
    SkyPainter painter;
    std::vector<cv::Mat> frames;
    std::vector<RandomSky> skies;
    for (int i = 0; i < differentFrames; ++i) {
        skies.push_back(plainSky(std::uint64_t(400000) + std::uint64_t(i), i % 2 == 1, 2026));
        frames.push_back(painter.frameOf(skies.back()));
        if (what == MemoryOf::SmallFrames)
            frames.back() = frames.back()(middle).clone();
    }
    malloc_trim(0);
    const double before = statusMegabytes("VmRSS");
    resetPeak();
    double early = 0.0;
    int recognised = 0;
    recognition::Follower follower({});
    for (int i = 0; i < count; ++i) {
        const std::size_t which = std::size_t(i % differentFrames);
        recognition::RecognitionOptions options;
        options.utcSeconds = *skies[which].state.date;
        const cv::Mat &frame = frames[which];
        const recognition::Recognition found =
            following ? follower.follow(frame, options.utcSeconds + 0.5 * i)
                      : recognition::recognise(recognition::extractStars(frame).stars, frame.cols,
                                               frame.rows, options);
        recognised += found.status == recognition::RecognitionStatus::Recognised;
        if (i == std::min(count - 1, 4 * differentFrames))
            early = statusMegabytes("VmRSS");
    }
    const double largest = statusMegabytes("VmHWM"), after = statusMegabytes("VmRSS");
    std::printf(
        "| frames | recognised | most beside the frame | after %d frames | at the end | growth |\n"
        "|---|---|---|---|---|---|\n",
        4 * differentFrames);
    std::printf("| %d | %d | %.1f MB | %.1f MB | %.1f MB | %.2f MB |\n", count, recognised,
                largest - before, early - before, after - before, after - early);
}
