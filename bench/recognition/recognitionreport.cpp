// SPDX-License-Identifier: MIT
// Measures the recognition of the pole's sky; docs/recognition.md records what it prints. The exit
// status is 1 if a bar was missed.
#include "bench/recognition/reports.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace
{
/// A report of COUNT frames or so, from number FIRST where they are numbered.
struct Report {
    const char *name;
    int usualCount;
    bool (*run)(int first, int count); ///< @return whether every bar was reached
};

constexpr Report reports[] = {
    {"skies", 2000, reportSkies},
    {"sparse", 100, reportSparseSkies},
    {"poles", 400, [](int, int count) { return reportPoles(count); }},
    {"axes", 200, [](int, int count) { return reportAxes(count); }},
    {"fewstars", 1000, [](int, int count) { return reportFewStars(count); }},
    {"fields", 1000, [](int, int count) { return reportFields(count); }},
    {"false", 10000, [](int first, int count) { return reportFalseFrames(first, count) == 0; }},
    {"speed", 100, [](int, int count) { return reportSpeeds(count); }},
    {"memory", 100000, [](int, int count) { return reportMemory(count, MemoryOf::Blind); }},
    {"smallmemory", 100000,
     [](int, int count) { return reportMemory(count, MemoryOf::SmallFrames); }},
    {"largememory", 1000,
     [](int, int count) { return reportMemory(count, MemoryOf::LargeFrames); }},
    {"following", 100000, [](int, int count) { return reportMemory(count, MemoryOf::Following); }},
};

bool fuzz(int argc, char *argv[])
{
    const bool from = argc > 5 && std::strcmp(argv[4], "--from") == 0;
    return reportFuzz(from ? std::atoi(argv[5]) : 0, std::atoi(argv[2]), std::atoi(argv[3]));
}

int usage()
{
    std::fprintf(stderr, "usage: recognitionreport NAME [COUNT [FIRST]], where NAME is one of\n");
    for (const Report &report : reports)
        std::fprintf(stderr, "           %s\n", report.name);
    std::fprintf(stderr, "       recognitionreport fuzz LISTS FRAMES [--from NUMBER]\n"
                         "       recognitionreport frames COUNT FOLDER\n");
    return 2;
}
} // namespace

int main(int argc, char *argv[])
{
    const char *what = argc > 1 ? argv[1] : "";
    const int count = argc > 2 ? std::atoi(argv[2]) : 0;
    const int first = argc > 3 ? std::atoi(argv[3]) : 0;
    if (std::strcmp(what, "fuzz") == 0 && argc > 3)
        return fuzz(argc, argv) ? 0 : 1;
    if (std::strcmp(what, "frames") == 0 && argc > 3)
        return writeFrames(argv[3], count > 0 ? count : 10) ? 0 : 1;
    for (const Report &report : reports)
        if (std::strcmp(what, report.name) == 0)
            return report.run(first, count > 0 ? count : report.usualCount) ? 0 : 1;
    return usage();
}
