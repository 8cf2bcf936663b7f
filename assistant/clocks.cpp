// SPDX-License-Identifier: MIT
// The clocks, steps of the computer's, and the kernel's word on it.
#include "assistant/clocks.h"

#include "assistant/settingsstore.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <ctime>
#include <sys/stat.h>
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
            [] { // the standard library's does not run while the computer sleeps
                timespec now = {};
                clock_gettime(CLOCK_BOOTTIME, &now);
                return double(now.tv_sec) + 1e-9 * double(now.tv_nsec);
            },
            isClockSynchronised, newestDate(datedFiles())};
}

bool isBehind(double utcSeconds, double certainPast)
{
    return certainPast > 0.0 && utcSeconds < certainPast - datesSlack;
}

std::vector<std::string> datedFiles()
{
    return {"/proc/self/exe", settingsPath().toStdString(), "/etc/ld.so.cache",
            "/var/lib/systemd/timesync/clock"};
}

double newestDate(const std::vector<std::string> &paths)
{
    double newest = 0.0;
    for (const std::string &path : paths) {
        struct stat found = {};
        if (stat(path.c_str(), &found) == 0)
            newest = std::max(newest, double(found.st_mtim.tv_sec));
    }
    return newest;
}

bool saysSynchronised(int state)
{
    return state != TIME_ERROR;
}

bool isClockSynchronised()
{
    timex clock = {};
    return saysSynchronised(adjtimex(&clock)); // changes nothing: no mode is set
}
} // namespace assistant
