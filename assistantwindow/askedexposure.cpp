// SPDX-License-Identifier: MIT
// Waits for the camera's answer.
#include "assistantwindow/askedexposure.h"

#include <cmath>

namespace assistantwindow
{
void AskedExposure::ask(std::optional<double> microseconds, double now)
{
    awaited = true;
    wanted = microseconds;
    since = now;
}

bool AskedExposure::isAwaited(double microseconds, bool automatic, double now)
{
    const bool isReported =
        wanted ? !automatic && std::abs(microseconds - *wanted) <= 0.01 * *wanted : automatic;
    if (isReported || now - since > patience)
        awaited = false;
    return awaited;
}
} // namespace assistantwindow
