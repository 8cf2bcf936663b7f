// SPDX-License-Identifier: MIT
// Skies of the virtual camera at random, as far apart as users' nights are.
#pragma once

#include <cstdint>
#include <opencv2/core.hpp>

#include "virtualcamera/scene.h"
#include "virtualcamera/sensor.h"
#include "virtualcamera/skystate.h"
#include "virtualcamera/truth.h"

struct RandomSky {
    virtualsky::SkyState state; ///< its date is set and fixed
    double seconds = 0.5;
    double gain = 50.0;
    std::uint64_t number = 1; ///< draws the frame's noise
};

/// The same sky for the same number: either pole, any roll, axis up to 4 degrees off the centre,
/// bolts up to 4 degrees off the pole, 2020 to 2040, 100 ms to 1 s, gain 20 to 100, cloud up to
/// 0.6, moon, stars 1.5 to 6 pixels wide, up to 200 hot pixels, one channel or three.
RandomSky randomSky(std::uint64_t number);

/// 500 ms, gain 50, clear; the rest at random.
RandomSky plainSky(std::uint64_t number, bool south, int year);

/// Renders skies; keeps the sensor's buffers. Not for two threads at a time.
class SkyPainter
{
public:
    /// 8 bit, 1280 x 960, as many channels as the sky asks for.
    cv::Mat frameOf(const RandomSky &sky);

private:
    virtualsky::Scene scene;
    virtualsky::Sensor sensor;
};

virtualsky::Truth truthOf(const RandomSky &sky);

/// How many catalogue stars in the frame are more than so many sigma above the noise, with
/// the best weighting and the noise of sensor, sky and star. From the catalogue and the sky's own
/// numbers, not from any frame. Flux above full scale does not count. Two stars within a star's
/// width count as one.
int starsAbove(const RandomSky &sky, double sigmas);
