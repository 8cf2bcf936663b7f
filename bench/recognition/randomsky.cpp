// SPDX-License-Identifier: MIT
// Draws skies and counts their stars.
#include "bench/recognition/randomsky.h"

#include <QDateTime>
#include <algorithm>
#include <cmath>
#include <vector>

#include "virtualcamera/mount.h"
#include "virtualcamera/vector3.h"

namespace
{
constexpr double edge = 4.0; // pixels within which a star counts as cut off

class Draw
{
public:
    explicit Draw(std::uint64_t number) : bits(virtualsky::frameSeed(20261121u, number)) {}
    double between(double low, double high) { return low + (high - low) * bits.uniform(); }
    double evenRatio(double low, double high) { return low * std::pow(high / low, bits.uniform()); }
    bool flip() { return bits.uniform() < 0.5; }

private:
    virtualsky::RandomBits bits;
};

double startOfYear(int year)
{
    return double(QDateTime(QDate(year, 1, 1), QTime(0, 0), Qt::UTC).toSecsSinceEpoch());
}

/// Site, mount and camera's place: everything except light.
virtualsky::SkyState mountAtRandom(Draw &draw, bool south, double date)
{
    virtualsky::SkyState state;
    state.latitude = draw.between(15.0, 65.0) * (south ? -1.0 : 1.0);
    state.longitude = draw.between(-180.0, 180.0);
    state.date = date;
    state.running = false;
    const double bolt = 4.0 * std::sqrt(draw.between(0.0, 1.0)),
                 way = draw.between(0.0, 2.0 * virtualsky::pi);
    state.boltAltitude = bolt * std::cos(way);
    state.boltAzimuth =
        bolt * std::sin(way) / std::cos(state.latitude * virtualsky::pi / 180.0); // at the horizon
    const double off = 4.0 * 3600.0 / virtualsky::pixelScale * std::sqrt(draw.between(0.0, 1.0));
    const double where = draw.between(0.0, 2.0 * virtualsky::pi);
    state.axisX = off * std::cos(where);
    state.axisY = off * std::sin(where);
    state.roll = draw.between(-180.0, 180.0);
    state.raAngle = draw.between(-90.0, 90.0);
    state.seeing = 3.0;
    return state;
}

struct Light {
    double noise;    ///< sigma of one pixel of the mean of the channels, values
    double values;   ///< of the mean of the channels, per electron
    double headroom; ///< values from the sky to full scale
};

/// The part of a star's flux that is below full scale.
double unclipped(double flux, double sigma, double headroom)
{
    const double area = 2.0 * virtualsky::pi * sigma * sigma, peak = flux / area;
    return peak <= headroom ? flux : headroom * area * (1.0 + std::log(peak / headroom));
}

Light lightOf(const RandomSky &sky)
{
    const double values = virtualsky::valuesPerElectron(sky.gain);
    const double background = virtualsky::backgroundRate(sky.state) * sky.seconds;
    const double variance =
        std::pow(virtualsky::readNoise(sky.gain), 2) + background * values * values + 1.0 / 12.0;
    return {std::sqrt(variance / sky.state.channels), values,
            255.0 - virtualsky::biasLevel - background * values};
}
} // namespace

RandomSky randomSky(std::uint64_t number)
{
    Draw draw(number);
    RandomSky sky;
    const bool south = draw.flip();
    sky.state = mountAtRandom(draw, south, draw.between(startOfYear(2020), startOfYear(2041)));
    sky.seconds = draw.evenRatio(0.1, 1.0);
    sky.gain = draw.between(20.0, 100.0);
    sky.state.clouds = draw.between(0.0, 0.6);
    sky.state.moon = draw.flip() ? draw.between(0.0, 1.0) : 0.0;
    sky.state.fwhm = draw.between(1.5, 6.0);
    sky.state.hotPixels = unsigned(draw.between(0.0, 201.0));
    sky.state.channels = draw.flip() ? 3 : 1;
    sky.state.seed = std::uint32_t(number + 1);
    sky.number = number + 1;
    return sky;
}

RandomSky plainSky(std::uint64_t number, bool south, int year)
{
    Draw draw(number ^ 0x5eedu);
    RandomSky sky;
    sky.state = mountAtRandom(draw, south, startOfYear(year) + draw.between(0.0, 3.15e7));
    sky.state.seed = std::uint32_t(number + 1);
    sky.number = number + 1;
    return sky;
}

cv::Mat SkyPainter::frameOf(const RandomSky &sky)
{
    cv::Mat frame(virtualsky::sensorHeight, virtualsky::sensorWidth,
                  sky.state.channels == 3 ? CV_8UC3 : CV_8UC1);
    sensor.render(sky.state, scene.starsAt(sky.state, *sky.state.date), {},
                  {sky.seconds, sky.gain, sky.number}, frame.data);
    return frame;
}

virtualsky::Truth truthOf(const RandomSky &sky)
{
    return virtualsky::truth(sky.state, *sky.state.date);
}

int starsAbove(const RandomSky &sky, double sigmas)
{
    virtualsky::Scene scene;
    const Light light = lightOf(sky);
    const double sigma = virtualsky::imageSigma(sky.state);
    const double pixels = 4.0 * virtualsky::pi * sigma * sigma; // whose noise counts
    std::vector<virtualsky::Point> counted;
    if (light.headroom <= 0.0)
        return 0;
    for (const virtualsky::ImagedStar &star : scene.starsAt(sky.state, *sky.state.date, 0.0)) {
        const double electrons = virtualsky::starRate(sky.state, star.vMagnitude) * sky.seconds;
        const double flux = electrons * light.values;
        const double own = flux * light.values / sky.state.channels;
        const bool inside = star.place.x > edge && star.place.y > edge &&
                            star.place.x < virtualsky::sensorWidth - 1 - edge &&
                            star.place.y < virtualsky::sensorHeight - 1 - edge;
        if (!inside || unclipped(flux, sigma, light.headroom) <
                           sigmas * std::sqrt(pixels * light.noise * light.noise + own))
            continue;
        const bool apart =
            std::none_of(counted.begin(), counted.end(), [&](const virtualsky::Point &other) {
                return std::hypot(other.x - star.place.x, other.y - star.place.y) < 2.355 * sigma;
            });
        if (apart)
            counted.push_back(star.place);
    }
    return int(counted.size());
}
