// SPDX-License-Identifier: MIT
// Loses INDI's simulated camera, and one with video, again and again.
#include "tests/indi/losscycles.h"

#include <algorithm>
#include <malloc.h>
#include <map>
#include <vector>

#include "tests/indi/indisource.h"
#include "tests/indi/losses.h"
#include "tests/reliability/processcounts.h"

namespace
{
constexpr qint64 returnBar = 5000; // milliseconds from the camera's return to a frame
constexpr qint64 callBar = 100;    // milliseconds of any call
constexpr qint64 heapBar = 8000;   // kilobytes more at the end, of whole frames some six

struct Held {
    int threads = 0, descriptors = 0;
    qint64 heap = 0; // kilobytes
};

Held held()
{
    const auto heap = mallinfo2();
    return {runningThreads(), openDescriptors(), qint64(heap.uordblks + heap.hblkhd) / 1024};
}

void playFor(IndiSource &source, qint64 milliseconds)
{
    QElapsedTimer playing;
    playing.start();
    while (playing.elapsed() < milliseconds)
        source.frame(50);
}

/// Whether a condition came true within 20 seconds.
template <typename Condition> bool playUntil(IndiSource &source, const Condition &isTrue)
{
    for (int i = 0; i < 400 && !isTrue(); ++i)
        playFor(source, 50);
    return isTrue();
}

/// Until the loss is complete. False: it does not become so.
bool playLoss(Loss loss, int time, int linesBefore, LosableCamera &camera, IndiSource &source)
{
    constexpr int stops[] = {1500, 4000, 8000, 14000}; // milliseconds
    const auto saysMore = [&] { return source.lines().size() > linesBefore; };
    switch (loss) {
    case Loss::Stopped:
        playFor(source, stops[time % 4]);
        return true;
    case Loss::Renamed:
        return playUntil(source, [&] {
            return source.lines().mid(linesBefore).join(' ').contains("it has: Another Camera");
        });
    case Loss::Cut:
        return playUntil(source, [&] { return camera.proxy.isCut(); }) &&
               playUntil(source, saysMore);
    case Loss::Garbage:
        playFor(source, 2500);
        return true;
    case Loss::Killed:
    case Loss::DriverKilled:
        return playUntil(source, saysMore);
    }
    return false;
}

class Cycles
{
public:
    explicit Cycles(bool stream)
        : camera(stream), source(port(camera), camera.device, settings(stream))
    {
        source.exposure = 0.05;
    }

    /// False: frames do not come back.
    bool run(int count)
    {
        if (source.frame().empty())
            return false;
        for (int cycle = 0; cycle < count; ++cycle)
            if (!once(cycle)) {
                std::printf("cycle %d, %s: no frames come back\n%s\n", cycle,
                            losses[std::size_t(cycle) % std::size(losses)].name,
                            qPrintable(source.lines().mid(source.lines().size() - 12).join("\n")));
                return false;
            }
        return true;
    }

    bool print(const char *mode)
    {
        bool good = true;
        for (auto &[name, times] : returns) {
            std::sort(times.begin(), times.end());
            std::printf("%s, %s, %zu times: back after %lld ms in the median, %lld at most\n", mode,
                        name.c_str(), times.size(), times[times.size() / 2], times.back());
            good &= keeps("frames are back within 5 s", times.back() < returnBar);
        }
        std::printf(
            "%s: slowest call %lld ms; heap %+lld kB, threads %+d, descriptors %+d; a stream "
            "gave way %d times and came again %d times\n",
            mode, source.slowest, last.heap - first.heap, last.threads - first.threads,
            last.descriptors - first.descriptors,
            int(source.lines().filter("single exposures are used").size()),
            int(source.lines().filter("frames again").size()));
        good &= keeps("calls take less than 100 ms", source.slowest < callBar);
        good &= keeps("the heap does not grow", last.heap - first.heap < heapBar);
        good &= keeps("no thread is left", last.threads <= first.threads);
        good &= keeps("no descriptor is left", last.descriptors <= first.descriptors + 1);
        return good;
    }

private:
    static quint16 port(LosableCamera &one) { return one.start() ? one.port() : quint16(0); }
    static framesources::SourceSettings settings(bool stream)
    {
        framesources::SourceSettings settings;
        settings.stream = stream;
        return settings;
    }

    bool once(int cycle)
    {
        const NamedLoss &named = losses[std::size_t(cycle) % std::size(losses)];
        const int time = cycle / int(std::size(losses));
        const int linesBefore = int(source.lines().size());
        QElapsedTimer lost;
        lost.start();
        camera.lose(named.loss, unsigned(cycle));
        if (!playLoss(named.loss, time, linesBefore, camera, source))
            return false;
        if (named.loss == Loss::Killed) { // no frame is on its way
            last = held();
            first = time == 1 ? last : first; // the allocator has settled
        }
        source.frame(1); // one from before
        if (named.loss != Loss::DriverKilled)
            lost.start();
        camera.restore(named.loss);
        if (source.frame(60000).empty())
            return false;
        returns[named.name].push_back(lost.elapsed());
        playFor(source, 2000 + 977 * (cycle % 5)); // a stream that is tried again has its time
        return true;
    }

    LosableCamera camera;
    IndiSource source;
    std::map<std::string, std::vector<qint64>> returns;
    Held first, last;
};
} // namespace

int reportCycles(int count)
{
    bool good = true;
    for (const bool stream : {false, true}) {
        Cycles cycles(stream);
        good = cycles.run(count / 2) && cycles.print(stream ? "video" : "exposures") && good;
        std::fflush(stdout);
    }
    return good ? 0 : 1;
}
