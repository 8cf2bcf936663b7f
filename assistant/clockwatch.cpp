// SPDX-License-Identifier: MIT
// Steps of the clock, and the kernel's word on it.
#include "assistant/clockwatch.h"

#include <cmath>
#include <sys/timex.h>

namespace assistant
{
double ClockWatch::step(double utcSeconds, double steadySeconds)
{
    const double now = utcSeconds - steadySeconds;
    const double by = offset ? now - *offset : 0.0;
    offset = now;
    return std::abs(by) >= noticedClockStep ? by : 0.0;
}

bool isClockSynchronised()
{
    timex clock = {};
    const int state = adjtimex(&clock); // changes nothing: no mode is set
    return state == -1 || (state != TIME_ERROR && (clock.status & STA_UNSYNC) == 0);
}
} // namespace assistant
