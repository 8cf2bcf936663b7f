// SPDX-License-Identifier: MIT
// Measures the recognition of the pole's sky; docs/recognition.md records what it prints.
#include "bench/recognition/reports.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace
{
int fuzz(int argc, char *argv[])
{
    const bool from = argc > 5 && std::strcmp(argv[4], "--from") == 0;
    return reportFuzz(from ? std::atoi(argv[5]) : 0, std::atoi(argv[2]), std::atoi(argv[3])) ? 0
                                                                                             : 1;
}
} // namespace

int main(int argc, char *argv[])
{
    const std::string what = argc > 1 ? argv[1] : "";
    const int count = argc > 2 ? std::atoi(argv[2]) : 0;
    const int first = argc > 3 ? std::atoi(argv[3]) : 0;
    if (what == "skies")
        reportSkies(first, count > 0 ? count : 2000);
    else if (what == "sparse")
        reportSparseSkies(first, count > 0 ? count : 100);
    else if (what == "poles")
        reportPoles(count > 0 ? count : 400);
    else if (what == "axes")
        reportAxes(count > 0 ? count : 200);
    else if (what == "fewstars")
        reportFewStars(count > 0 ? count : 1000);
    else if (what == "fields")
        reportFields(count > 0 ? count : 1000);
    else if (what == "false")
        return reportFalseFrames(first, count > 0 ? count : 10000) == 0 ? 0 : 1;
    else if (what == "fuzz" && argc > 3)
        return fuzz(argc, argv);
    else if (what == "speed")
        reportSpeeds(count > 0 ? count : 100);
    else if (what == "memory")
        reportMemory(count > 0 ? count : 100000, MemoryOf::Blind);
    else if (what == "smallmemory")
        reportMemory(count > 0 ? count : 100000, MemoryOf::SmallFrames);
    else if (what == "following")
        reportMemory(count > 0 ? count : 100000, MemoryOf::Following);
    else if (what == "frames" && argc > 3)
        return writeFrames(argv[3], count > 0 ? count : 10) ? 0 : 1;
    else {
        std::fprintf(stderr,
                     "usage: recognitionreport "
                     "skies|sparse|poles|axes|fewstars|fields|false|speed|memory|smallmemory|"
                     "following [COUNT [FIRST]]\n"
                     "       recognitionreport fuzz LISTS FRAMES [--from NUMBER]\n"
                     "       recognitionreport frames COUNT FOLDER\n");
        return 2;
    }
    return 0;
}
