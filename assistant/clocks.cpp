// SPDX-License-Identifier: MIT
// The clocks, steps of the computer's, and the kernel's word on it.
#include "assistant/clocks.h"

#include <chrono>
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

Clocks systemClocks()
{
    using std::chrono::duration;
    return {[] {
                const auto now = std::chrono::system_clock::now().time_since_epoch();
                return duration<double>(now).count();
            },
            [] {
                const auto now = std::chrono::steady_clock::now().time_since_epoch();
                return duration<double>(now).count();
            },
            isClockSynchronised};
}

bool isClockSynchronised()
{
    timex clock = {};
    const int state = adjtimex(&clock); // changes nothing: no mode is set
    return state == -1 || (state != TIME_ERROR && (clock.status & STA_UNSYNC) == 0);
}
} // namespace assistant
