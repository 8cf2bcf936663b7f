// SPDX-License-Identifier: MIT
// Draws the starts.
#include "bench/assistant/start.h"

#include "virtualcamera/noise.h"
#include "virtualcamera/optics.h"
#include "virtualcamera/sensor.h"
#include "virtualcamera/vector3.h"

#include <cmath>

namespace
{
constexpr double november2026 = 1795204800.0;

class Draw
{
public:
    explicit Draw(std::uint64_t number) : bits(virtualsky::frameSeed(20261122u, number)) {}
    double between(double low, double high) { return low + (high - low) * bits.uniform(); }

private:
    virtualsky::RandomBits bits;
};
} // namespace

virtualsky::SkyState startingSky(std::uint64_t number)
{
    Draw draw(number);
    virtualsky::SkyState sky;
    const bool south = number % 2 != 0;
    sky.tracking = number / 2 % 2 != 0;
    sky.refraction = number / 4 % 2 != 0;
    sky.channels = number % 3 == 2 ? 3 : 1;
    sky.clouds = number % 5 == 4 ? draw.between(0.2, 0.5) : 0.0;
    sky.latitude = draw.between(20.0, 60.0) * (south ? -1.0 : 1.0);
    sky.longitude = draw.between(-180.0, 180.0);
    sky.date = november2026 + draw.between(0.0, 3.15e7);
    const double bolt = 5.0 * std::sqrt(draw.between(0.0, 1.0));
    const double way = draw.between(0.0, 2.0 * virtualsky::pi);
    sky.boltAltitude = bolt * std::cos(way);
    sky.boltAzimuth =
        bolt * std::sin(way) / std::cos(sky.latitude * virtualsky::degree); // about the vertical
    const double off = 2.0 * 3600.0 / virtualsky::pixelScale * std::sqrt(draw.between(0.0, 1.0));
    const double where = draw.between(0.0, 2.0 * virtualsky::pi);
    sky.axisX = off * std::cos(where);
    sky.axisY = off * std::sin(where);
    sky.roll = draw.between(-180.0, 180.0);
    sky.raAngle = draw.between(-60.0, 60.0);
    sky.seed = std::uint32_t(number + 1);
    return sky;
}

assistant::Settings settingsFor(const virtualsky::SkyState &sky)
{
    assistant::Settings settings;
    settings.site = astrometry::Site{sky.latitude, sky.longitude};
    settings.pressure = sky.refraction ? sky.pressure : 0.0;
    settings.temperature = sky.temperature;
    return settings;
}
