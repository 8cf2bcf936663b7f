// SPDX-License-Identifier: MIT
// How exactly and how fast does a person align with the assistant's window?
#include "bench/assistant/displayreport.h"
#include "bench/assistant/reports.h"
#include "bench/assistant/windowmount.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>

namespace
{
constexpr char usage[] =
    "usage: assistantwindowreport starts|display [NUMBER]\n"
    "  starts [COUNT]     alignments from random starts, by mouse and keys (20)\n"
    "  display [SECONDS]  frame to painted number, and the load (60)\n";

int run(PaintClock &application, const char *what, int given)
{
    if (std::strcmp(what, "starts") == 0) {
        reportStarts(given > 0 ? given : 20, [](const virtualsky::SkyState &sky) {
            WindowMount mount(sky);
            return alignAsTold(mount);
        });
        return EXIT_SUCCESS;
    }
    if (std::strcmp(what, "display") == 0) {
        reportDisplay(application, given > 0 ? given : 60);
        return EXIT_SUCCESS;
    }
    return std::fputs(usage, stderr), EXIT_FAILURE;
}
} // namespace

int main(int argc, char *argv[])
{
    PaintClock application(argc, argv);
    try {
        return run(application, argc > 1 ? argv[1] : "", argc > 2 ? std::atoi(argv[2]) : 0);
    } catch (const std::exception &problem) {
        std::fprintf(stderr, "assistantwindowreport: %s\n", problem.what());
        return EXIT_FAILURE;
    }
}
