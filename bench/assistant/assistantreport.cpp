// SPDX-License-Identifier: MIT
// How exactly, how fast and how steadily does the assistant align?
#include "bench/assistant/librarymount.h"
#include "bench/assistant/reports.h"
#include "bench/assistant/start.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace
{
constexpr char usage[] = "usage: assistantreport starts|axis|library|clock|night|speed [NUMBER]\n"
                         "  starts [COUNT]   alignments from random starts, painted (20)\n"
                         "  axis [COUNT]     the axis alone, turned fast and slowly (100)\n"
                         "  library [COUNT]  the same on the camera library, in real time (20)\n"
                         "  clock [HOURS]    starts with the computer's clock ahead (24)\n"
                         "  night [HOURS]    bolts at rest (8)\n"
                         "  speed [FRAMES]   frame to status (300)\n";

template <typename Mount> AlignmentResult alignOn(const virtualsky::SkyState &sky)
{
    Mount mount(sky, settingsFor(sky));
    return alignAsTold(mount);
}
} // namespace

int main(int argc, char *argv[])
{
    const auto is = [&](const char *name) { return argc > 1 && std::strcmp(argv[1], name) == 0; };
    const int given = argc > 2 ? std::atoi(argv[2]) : 0;
    const auto number = [given](int byDefault) { return given > 0 ? given : byDefault; };
    if (is("starts"))
        reportStarts(number(20), alignOn<PaintedMount>);
    else if (is("axis"))
        for (const double degreesPerSecond : {6.0, 3.0, 1.0, 0.5})
            reportAxis(number(100), degreesPerSecond);
    else if (is("library"))
        reportStarts(number(20), alignOn<LibraryMount>);
    else if (is("clock"))
        reportStarts(20, [hours = number(24)](const virtualsky::SkyState &sky) {
            PaintedMount mount(sky, settingsFor(sky));
            mount.setClockError(3600.0 * hours);
            return alignAsTold(mount);
        });
    else if (is("night"))
        reportNight(number(8));
    else if (is("speed"))
        reportSpeed(number(300));
    else
        return std::fputs(usage, stderr), EXIT_FAILURE;
    return EXIT_SUCCESS;
}
