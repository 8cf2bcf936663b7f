// SPDX-License-Identifier: MIT
// Frame timing.
#include "virtualcamera/frameclock.h"

#include <algorithm>
#include <cmath>

namespace virtualsky
{
double framePeriod(double exposureSeconds, double usbTraffic, double speed)
{
    constexpr double fastest = 1.0 / 30.0;
    const double readOut = (0.010 + 0.00011 * usbTraffic) * (1.0 - 0.25 * speed);
    return std::max(exposureSeconds + readOut, fastest);
}

void FrameClock::begin(double now, double period)
{
    started = now;
    length = period;
}

void FrameClock::setPeriod(double period)
{
    length = period;
}

bool FrameClock::take(double now)
{
    if (length <= 0.0)
        return true;
    const double finished = std::floor((now - started) / length);
    if (!(finished >= 1.0))
        return false;
    started += finished * length;
    return true;
}
} // namespace virtualsky
