// SPDX-License-Identifier: MIT
// How much memory is in use beside the frame, and does it grow?
#include "bench/recognition/bars.h"
#include "bench/recognition/paintedsky.h"
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

struct DatedFrame {
    cv::Mat picture;
    double utcSeconds;
};

DatedFrame largeFrame(int number)
{
    PaintedSky sky;
    sky.width = 1456;
    sky.height = 1088;
    sky.south = number % 2 == 1;
    sky.direction = 37.0 * number;
    sky.offCentre = 0.2 * number;
    sky.roll = 61.0 * number;
    sky.seed = unsigned(number + 1);
    return {paintSky(sky), sky.utcSeconds};
}

std::vector<DatedFrame> framesOf(MemoryOf what, int count)
{
    const cv::Rect middle(virtualsky::sensorWidth / 4, virtualsky::sensorHeight / 4,
                          virtualsky::sensorWidth / 2, virtualsky::sensorHeight / 2);
    SkyPainter painter;
    std::vector<DatedFrame> frames;
    for (int i = 0; i < count; ++i) {
        if (what == MemoryOf::LargeFrames) {
            frames.push_back(largeFrame(i));
            continue;
        }
        const RandomSky sky = plainSky(std::uint64_t(400000) + std::uint64_t(i), i % 2 == 1, 2026);
        frames.push_back({painter.frameOf(sky), *sky.state.date});
        if (what == MemoryOf::SmallFrames)
            frames.back().picture = frames.back().picture(middle).clone();
    }
    return frames;
}
} // namespace

bool reportMemory(int count, MemoryOf what)
{
    // A follower meets a frame again, so that it follows; the others are searched blind.
    const bool following = what == MemoryOf::Following;
    const int differentFrames = following ? 1 : 16;
    const std::vector<DatedFrame> frames = framesOf(what, differentFrames);
    malloc_trim(0);
    const double before = statusMegabytes("VmRSS");
    resetPeak();
    double early = 0.0;
    int recognised = 0;
    recognition::Follower follower({});
    for (int i = 0; i < count; ++i) {
        const DatedFrame &dated = frames[std::size_t(i % differentFrames)];
        recognition::RecognitionOptions options;
        options.utcSeconds = dated.utcSeconds;
        const cv::Mat &frame = dated.picture;
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
    Bars bars;
    bars.atLeast("frames recognised", recognised, count);
    bars.atMost("megabytes beside the frame", largest - before, 20.0);
    bars.atMost("megabytes of growth", after - early, 0.5);
    return bars.kept();
}
