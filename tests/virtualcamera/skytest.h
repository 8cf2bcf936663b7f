// SPDX-License-Identifier: MIT
// What do the tests of the virtual sky share? A quiet state, a rendered frame, a plain centroid.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

#include "virtualcamera/scene.h"
#include "virtualcamera/sensor.h"
#include "virtualcamera/skystate.h"

namespace skytest
{
using namespace virtualsky;

constexpr double may2024 = 1716465600.0; // 2024-05-23T12:00:00Z

/// No noise, no hot pixels, the axis on the pole and in the middle of the picture.
inline SkyState quietState(bool south = false)
{
    SkyState state;
    state.latitude = south ? -35.0 : 40.0;
    state.boltAltitude = state.boltAzimuth = 0.0;
    state.axisX = state.axisY = 0.0;
    state.noise = false;
    state.hotPixels = 0;
    return state;
}

struct Frame {
    Area area;
    unsigned channels;
    std::vector<std::uint8_t> values;

    int at(int x, int y, unsigned channel = 0) const
    {
        const auto pixel = static_cast<std::size_t>(y) * static_cast<std::size_t>(area.width) +
                           static_cast<std::size_t>(x);
        return values[pixel * channels + channel];
    }
};

inline Frame render(const SkyState &state, const std::vector<ImagedStar> &stars,
                    const Exposure &exposure, const Area &area = {})
{
    Frame frame = {area, state.channels, {}};
    frame.values.resize(static_cast<std::size_t>(area.width) *
                        static_cast<std::size_t>(area.height) * state.channels);
    Sensor sensor;
    sensor.render(state, stars, area, exposure, frame.values.data());
    return frame;
}

/// Centre of the light above the dark level in a square around a place.
inline Point centroid(const Frame &frame, const Point &near, int radius, unsigned channel = 0)
{
    const int middleX = static_cast<int>(std::lround(near.x));
    const int middleY = static_cast<int>(std::lround(near.y));
    const int dark = frame.at(middleX - radius, middleY - radius, channel);
    double sum = 0.0, sumX = 0.0, sumY = 0.0;
    for (int y = middleY - radius; y <= middleY + radius; ++y)
        for (int x = middleX - radius; x <= middleX + radius; ++x) {
            const double excess = frame.at(x, y, channel) - dark;
            sum += excess;
            sumX += excess * x;
            sumY += excess * y;
        }
    return {sumX / sum, sumY / sum};
}

inline double distance(const Point &a, const Point &b)
{
    return std::hypot(a.x - b.x, a.y - b.y);
}

constexpr Point middle = {640.0, 480.0};

inline Frame oneStar(const SkyState &state, double magnitude, double seconds, double gain,
                     const Point &place = middle, double bMinusV = 0.65)
{
    return render(state, {{place, magnitude, bMinusV}}, {seconds, gain, 1});
}

inline double mean(const Frame &frame)
{
    double sum = 0.0;
    for (const std::uint8_t value : frame.values)
        sum += value;
    return sum / static_cast<double>(frame.values.size());
}

inline double deviation(const Frame &frame)
{
    const double level = mean(frame);
    double sum = 0.0;
    for (const std::uint8_t value : frame.values)
        sum += (value - level) * (value - level);
    return std::sqrt(sum / static_cast<double>(frame.values.size()));
}

inline SkyState darkState()
{
    SkyState state = quietState();
    state.skyMagnitude = 25.0;
    return state;
}
} // namespace skytest
