// SPDX-License-Identifier: MIT
// The frame that all benchmarks use.
#include "bench/skyframe.h"

#include "tools/practicesky.h"
#include "virtualcamera/scene.h"
#include "virtualcamera/sensor.h"

SkyFrame::SkyFrame()
    : sky(practiceSky(false)),
      truth(virtualsky::truth(sky, *sky.date)),
      grey(virtualsky::sensorHeight, virtualsky::sensorWidth, CV_8UC1)
{
    virtualsky::Scene scene;
    virtualsky::Sensor sensor;
    sensor.render(sky, scene.starsAt(sky, *sky.date), {}, {0.5, 50.0, 1}, grey.data);
}

const SkyFrame &skyFrame()
{
    static const SkyFrame frame;
    return frame;
}
