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
constexpr char thisProgram[] = "/proc/self/exe";

double systemTime()
{
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration<double>(now).count();
}

/// Seconds east of UTC, of the computer's time zone.
double zoneNow()
{
    const std::time_t now = std::time(nullptr);
    std::tm local = {};
    return localtime_r(&now, &local) ? double(local.tm_gmtoff) : 0.0;
}

/// Whether a hardware clock did not lose its time, as one without a battery.
bool keepsTime(std::optional<double> hardware, double certainPast)
{
    constexpr double day = 86400.0, neverSet = 366.0 * day; // since 1970, where no past is known
    // Files of a wrong clock that was ahead are no reason to distrust the hardware's.
    constexpr double lost = 30.0 * day;
    return hardware && *hardware >= neverSet && *hardware >= certainPast - lost;
}
} // namespace

double ClockWatch::step(double utcSeconds, double steadySeconds)
{
    const double now = utcSeconds - steadySeconds;
    const double by = offset ? now - *offset : 0.0;
    offset = now;
    return std::abs(by) >= noticedClockStep ? by : 0.0;
}

Clocks systemClocks(const ClockSources &sources)
{
    const double certainPast = newestDate(datedFiles());
    const double built = newestDate({thisProgram});
    return {systemTime,
            [] { // the standard library's does not run while the computer sleeps
                timespec now = {};
                clock_gettime(CLOCK_BOOTTIME, &now);
                return double(now.tv_sec) + 1e-9 * double(now.tv_nsec);
            },
            [sources, certainPast] {
                return sources.kernel() &&
                       !contradicts(systemTime(), hardwareTime(sources.hardware), certainPast);
            },
            certainPast,
            [sources, built] {
                return confirms(systemTime(), hardwareTime(sources.hardware), built, zoneNow());
            }};
}

bool isBehind(double utcSeconds, double certainPast)
{
    return certainPast > 0.0 && utcSeconds < certainPast - datesSlack;
}

bool contradicts(double utcSeconds, std::optional<double> hardware, double certainPast)
{
    return keepsTime(hardware, certainPast) && std::abs(utcSeconds - *hardware) > zonesSlack;
}

bool confirms(double utcSeconds, std::optional<double> hardware, double built, double zone)
{
    if (!keepsTime(hardware, built))
        return false;
    const double ahead = *hardware - utcSeconds;
    return std::min(std::abs(ahead), std::abs(ahead - zone)) <= datesSlack;
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
    return {thisProgram, settingsPath().toStdString(), "/etc/ld.so.cache",
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
