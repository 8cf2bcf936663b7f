// SPDX-License-Identifier: MIT
// How long does the tour wait before it reports that it is stuck?
#pragma once

#include <QtGlobal>
#include <algorithm>

/// Milliseconds, on a machine of ordinary speed. Under an emulator the environment variable
/// QUORVANDEL_TOUR_PATIENCE, a whole number, says how many times as long to wait.
inline int patience(int milliseconds)
{
    return milliseconds *
           std::clamp(qEnvironmentVariableIntValue("QUORVANDEL_TOUR_PATIENCE"), 1, 100);
}
