// SPDX-License-Identifier: MIT
// The clocks, steps of the computer's, and the kernel's word on it.
#include "assistant/clocks.h"

#include "assistant/settingsstore.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <ctime>
#include <fstream>
#include <sys/stat.h>
#include <sys/timex.h>

namespace assistant
{
namespace
{
double systemTime()
{
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration<double>(now).count();
}
} // namespace

double ClockWatch::step(double utcSeconds, double steadySeconds)
{
    const double now = utcSeconds - steadySeconds;
    const double by = offset ? now - *offset : 0.0;
    offset = now;
    return std::abs(by) >= noticedClockStep ? by : 0.0;
}

Clocks systemClocks()
{
    const double certainPast = newestDate(datedFiles());
    return {systemTime,
            [] { // the standard library's does not run while the computer sleeps
                timespec now = {};
                clock_gettime(CLOCK_BOOTTIME, &now);
                return double(now.tv_sec) + 1e-9 * double(now.tv_nsec);
            },
            [certainPast] {
                return isClockSynchronised() &&
                       !contradicts(systemTime(), hardwareTime(), certainPast);
            },
            certainPast};
}

bool isBehind(double utcSeconds, double certainPast)
{
    return certainPast > 0.0 && utcSeconds < certainPast - datesSlack;
}

bool contradicts(double utcSeconds, std::optional<double> hardware, double certainPast)
{
    constexpr double day = 86400.0, neverSet = 366.0 * day; // since 1970, where no past is known
    // Files of a wrong clock that was ahead are no reason to distrust the hardware's.
    constexpr double lost = 30.0 * day;
    if (!hardware || *hardware < neverSet || *hardware < certainPast - lost)
        return false;
    return std::abs(utcSeconds - *hardware) > zonesSlack;
}

std::optional<double> hardwareTime(const std::string &file)
{
    std::ifstream in(file);
    long long seconds = 0;
    if (!(in >> seconds))
        return std::nullopt;
    return double(seconds);
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
