// SPDX-License-Identifier: MIT
// Comparisons and their complaints.
#include "bench/recognition/bars.h"

#include <cstdio>

void Bars::atMost(const char *what, double value, double bar)
{
    compare(value <= bar, what, value, "most", bar);
}

void Bars::atLeast(const char *what, double value, double bar)
{
    compare(value >= bar, what, value, "least", bar);
}

void Bars::compare(bool reached, const char *what, double value, const char *side, double bar)
{
    if (reached)
        return;
    missed = true;
    std::fprintf(stderr, "bar missed: %s: %g, at %s %g\n", what, value, side, bar);
}
