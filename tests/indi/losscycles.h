// SPDX-License-Identifier: MIT
// How soon do frames come back after many losses, and is anything left behind?
#pragma once

#include <cstdio>

/// Says whether a bar is kept.
inline bool keeps(const char *what, bool isKept)
{
    if (!isKept)
        std::printf("MISSED: %s\n", what);
    return isKept;
}

/// Loses the camera in each way in turn: half of the cycles with single exposures, half with video.
/// @return an exit status: 0 = every bar is kept
int reportCycles(int count);
