// SPDX-License-Identifier: MIT
// Runs hours in minutes.
#include "bench/assistant/night.h"

#include "bench/assistant/mountonsky.h"
#include "bench/assistant/person.h"
#include "bench/assistant/start.h"
#include "virtualcamera/vector3.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <unistd.h>
#include <vector>

namespace
{
constexpr double turnBack = 6.0 * 3600.0; // seconds

double residentMebibytes()
{
    std::ifstream pages("/proc/self/statm");
    double total = 0.0, resident = 0.0;
    pages >> total >> resident;
    return resident * double(sysconf(_SC_PAGESIZE)) / 1048576.0;
}

double meanOf(const std::vector<double> &values, std::size_t from, std::size_t to)
{
    double sum = 0.0;
    for (std::size_t i = from; i < to; ++i)
        sum += values[i];
    return to > from ? sum / double(to - from) : 0.0;
}
} // namespace

NightResult nightAtRest(const virtualsky::SkyState &sky, double hours, double interval)
{
    PaintedMount mount(sky, settingsFor(sky));
    NightResult night;
    if (!turnAxisAsTold(mount))
        return night;
    const double began = mount.seconds(), length = hours * 3600.0;
    double resident = 0.0, turned = began;
    std::vector<double> totals;
    while (mount.seconds() - began < length) {
        mount.wait(interval);
        if (mount.sky().tracking && mount.seconds() - turned > turnBack) {
            virtualsky::SkyState back = mount.sky();
            back.trackingSince = *back.date + mount.seconds();
            mount.setSky(back);
            turned = mount.seconds();
        }
        const assistant::Status status = mount.next();
        ++night.frames;
        if (resident == 0.0 && mount.seconds() - began > 0.1 * length)
            resident = residentMebibytes();
        if (!status.error)
            continue;
        ++night.figures;
        totals.push_back(status.error->total.arcseconds);
        const double onSky =
            std::cos((std::abs(sky.latitude) + sky.boltAltitude) * virtualsky::degree);
        const double up = status.error->altitude->arcseconds - 3600.0 * sky.boltAltitude;
        const double east = (status.error->azimuth->arcseconds - 3600.0 * sky.boltAzimuth) * onSky;
        night.worstDrift = std::max({night.worstDrift, std::abs(up), std::abs(east)});
        night.worstSigmas =
            std::max({night.worstSigmas, std::abs(up) / status.error->altitude->sigma,
                      std::abs(east) / (status.error->azimuth->sigma * onSky)});
    }
    const std::size_t tenth = totals.size() / 10;
    night.change = meanOf(totals, totals.size() - tenth, totals.size()) - meanOf(totals, 0, tenth);
    night.growthMebibytes = residentMebibytes() - resident;
    return night;
}
