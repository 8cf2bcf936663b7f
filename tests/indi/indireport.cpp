// SPDX-License-Identifier: MIT
// How do frames by INDI hold out over many losses, and what does a stream cost? Not run by ctest:
// `indireport cycles N` and `indireport stream SECONDS`, with indi-bin installed. Fails where a bar
// is missed.
#include <QCoreApplication>
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <sys/resource.h>

#include "tests/indi/indiserver.h"
#include "tests/indi/indisource.h"
#include "tests/indi/losscycles.h"

namespace
{
constexpr double rateBar = 25.0;     // frames a second
constexpr double processorBar = 0.5; // of a core

double processorSeconds()
{
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval &time) {
        return double(time.tv_sec) + 1e-6 * double(time.tv_usec);
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

int stream(int seconds)
{
    IndiServer server;
    if (!server.start({"indi_test_video"}, videoCamera))
        return 1;
    IndiSource source(server.port, videoCamera);
    source.exposure = 0.05;
    for (int i = 0; i < 5; ++i)
        if (source.frame().empty())
            return 1;
    const double before = processorSeconds();
    QElapsedTimer timer;
    timer.start();
    int frames = 0;
    while (timer.elapsed() < seconds * 1000)
        frames += source.frame(1000).empty() ? 0 : 1;
    const double span = double(timer.elapsed()) / 1000.0;
    if (!source.lines().filter("single exposures").isEmpty())
        std::printf("the stream stalled\n");
    const double rate = frames / span, load = (processorSeconds() - before) / span;
    std::printf("%.1f frames a second of 1280 x 960 pixels, %.2f of a core\n", rate, load);
    bool good = keeps("25 frames a second", rate >= rateBar);
    good &= keeps("half a core", load < processorBar);
    return good ? 0 : 1;
}
} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    if (argc == 3 && std::strcmp(argv[1], "cycles") == 0)
        return reportCycles(std::max(1, std::atoi(argv[2])));
    if (argc == 3 && std::strcmp(argv[1], "stream") == 0)
        return stream(std::max(1, std::atoi(argv[2])));
    std::fputs("usage: indireport cycles N | stream SECONDS\n", stderr);
    return 2;
}
