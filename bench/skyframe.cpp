// SPDX-License-Identifier: MIT
// The frame that everything is measured on.
#include "bench/skyframe.h"

#include "virtualcamera/scene.h"
#include "virtualcamera/sensor.h"

SkyFrame::SkyFrame() : grey(virtualsky::sensorHeight, virtualsky::sensorWidth, CV_8UC1)
{
    constexpr double may2024 = 1716472800.0; // 2024-05-23T14:00:00Z
    sky.date = may2024;
    sky.running = false;
    truth = virtualsky::truth(sky, may2024);
    virtualsky::Scene scene;
    virtualsky::Sensor sensor;
    sensor.render(sky, scene.starsAt(sky, may2024), {}, {0.5, 50.0, 1}, grey.data);
}

const SkyFrame &skyFrame()
{
    static const SkyFrame frame;
    return frame;
}
