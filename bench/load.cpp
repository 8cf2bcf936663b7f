// SPDX-License-Identifier: MIT
// Measures the complete program with the virtual camera in monitor mode: memory, load, frame rate,
// clicks, large allocations.
#include "app/startup.h"
#include "bench/clicks.h"
#include "bench/fetches.h"
#include "bench/largeallocations.h"
#include "bench/monitoredrun.h"
#include "bench/processfigures.h"

#include <QApplication>
#include <QPushButton>
#include <QScrollArea>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace
{
constexpr double settleSeconds = 3;

void measureMemory(MonitoredRun &run, double)
{
    run.wait(settleSeconds);
    printf("resident %.1f MiB (anonymous %.1f, file-backed %.1f); peak %.1f; reserved %.1f\n",
           statusMebibytes("VmRSS"), statusMebibytes("RssAnon"), statusMebibytes("RssFile"),
           statusMebibytes("VmHWM"), statusMebibytes("VmSize"));
}

/// Frames per second and processor load by thread, over a period.
void measureLoad(MonitoredRun &run, double seconds)
{
    run.wait(settleSeconds);
    const auto threadsBefore = threadSeconds();
    const Fetches before = fetches();
    const long faultsBefore = pageFaults();
    const double cpuBefore = clockSeconds(CLOCK_PROCESS_CPUTIME_ID);
    const double clockBefore = clockSeconds(CLOCK_MONOTONIC);
    run.wait(seconds);
    const double passed = clockSeconds(CLOCK_MONOTONIC) - clockBefore;
    const double cpu = clockSeconds(CLOCK_PROCESS_CPUTIME_ID) - cpuBefore;
    const Fetches after = fetches();
    const double frames = double(after.frames - before.frames);
    printf("%.1f newly touched memory pages per frame\n",
           double(pageFaults() - faultsBefore) / frames);
    printf("%.1f frames per second; %.1f %% of a core, including %.1f %% for the virtual camera\n",
           frames / passed, 100 * cpu / passed, 100 * (after.seconds - before.seconds) / passed);
    for (const auto &[name, now] : threadSeconds()) {
        const auto earlier = threadsBefore.find(name);
        const double share = now - (earlier == threadsBefore.end() ? 0.0 : earlier->second);
        if (share > 0.001 * passed)
            printf("  %-16s %5.1f %%\n", name.c_str(), 100 * share / passed);
    }
}

void measureClicks(MonitoredRun &run, double seconds)
{
    auto *const button = run.window.findChild<QPushButton *>("pushButton_monitor");
    run.window.findChild<QScrollArea *>("scrollArea_manager")->ensureWidgetVisible(button);
    const std::vector<double> times = clickTimes(*button, int(seconds / 0.08));
    if (times.empty()) {
        printf("no click was answered\n");
        return;
    }
    printf("%zu clicks answered: median %.1f ms, 99 of 100 within %.1f ms, worst %.1f ms\n",
           times.size(), times[times.size() / 2], times[times.size() * 99 / 100], times.back());
}

void measureRate(MonitoredRun &run, double seconds)
{
    run.setUnthrottled(true);
    measureLoad(run, seconds);
    measureClicks(run, seconds);
}

void listAllocations(MonitoredRun &run, double seconds)
{
    run.wait(settleSeconds);
    const std::uint64_t before = fetches().frames;
    countLargeAllocations();
    run.wait(seconds);
    const double frames = double(fetches().frames - before);
    const auto counts = largeAllocations();
    printf("%.0f frames; requests of at least %zu bytes per frame:\n", frames, largeBlock);
    for (const auto &[who, count] : counts)
        printf("  %.2f  %s\n", count / frames, who.c_str());
}

/// Prints resident mebibytes every second, for bench/plot_memory.py.
void soak(MonitoredRun &run, double seconds)
{
    printf("seconds,resident_mebibytes,frames\n");
    const double begin = clockSeconds(CLOCK_MONOTONIC);
    for (double now = 0; now < seconds; now = clockSeconds(CLOCK_MONOTONIC) - begin) {
        printf("%.1f,%.2f,%llu\n", now, statusMebibytes("VmRSS"),
               static_cast<unsigned long long>(fetches().frames));
        fflush(stdout);
        run.wait(1);
    }
}

const struct {
    const char *name;
    void (*measure)(MonitoredRun &run, double seconds);
    double seconds; ///< default duration
} measurements[] = {{"memory", measureMemory, 0},  {"load", measureLoad, 20},
                    {"clicks", measureClicks, 15}, {"rate", measureRate, 15},
                    {"soak", soak, 600},           {"allocations", listAllocations, 10}};
} // namespace

int main(int argc, char *argv[])
{
    for (const auto &measurement : measurements) {
        if (argc < 2 || std::strcmp(argv[1], measurement.name) != 0)
            continue;
        const int zoom = argc > 2 ? std::atoi(argv[2]) : 75;
        const double seconds = argc > 3 ? std::atof(argv[3]) : measurement.seconds;
        prepareApplication();
        QApplication application(argc, argv);
        startWindows(application);
        try {
            MonitoredRun run(zoom);
            measurement.measure(run, seconds);
        } catch (const std::exception &problem) {
            fprintf(stderr, "%s\n", problem.what());
            return 1;
        }
        return 0;
    }
    fprintf(stderr, "usage: load memory|load|clicks|rate|allocations|soak [zoom [seconds]]\n");
    return 2;
}
