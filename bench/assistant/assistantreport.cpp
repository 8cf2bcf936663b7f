// SPDX-License-Identifier: MIT
// How exactly, how fast and how steadily does the assistant align?
#include "bench/assistant/reports.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace
{
constexpr char usage[] = "usage: assistantreport starts [COUNT]\n";
}

int main(int argc, char *argv[])
{
    const auto is = [&](const char *name) { return argc > 1 && std::strcmp(argv[1], name) == 0; };
    const int count = argc > 2 ? std::atoi(argv[2]) : 0;
    if (is("starts"))
        reportStarts(count > 0 ? count : 20);
    else
        return std::fputs(usage, stderr), EXIT_FAILURE;
    return EXIT_SUCCESS;
}
