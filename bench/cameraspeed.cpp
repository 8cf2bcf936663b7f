// SPDX-License-Identifier: MIT
// What does one frame of the virtual camera cost?
#include "bench/plainforms.h"
#include "bench/skyframe.h"
#include "virtualcamera/scene.h"
#include "virtualcamera/sensor.h"
#include "virtualcamera/skysource.h"

#include <benchmark/benchmark.h>

namespace
{
const virtualsky::Exposure exposure{0.5, 50.0, 1};

/// Same work as in the camera library: check the sky file, rotate the sky, spread the stars, add
/// noise.
void frame(benchmark::State &state)
{
    virtualsky::SkySource source("no sky file", {});
    cv::Mat grey(virtualsky::sensorHeight, virtualsky::sensorWidth, CV_8UC3);
    virtualsky::FrameRequest request{{}, exposure};
    for (auto _ : state) {
        ++request.exposure.frameNumber;
        benchmark::DoNotOptimize(source.frame(request, grey.data));
        benchmark::ClobberMemory();
    }
}

void plainFrame(benchmark::State &state)
{
    const virtualsky::SkyState &sky = skyFrame().sky;
    virtualsky::Scene scene;
    std::vector<PlainSensor::Star> stars;
    for (const virtualsky::ImagedStar &star : scene.starsAt(sky, *sky.date))
        stars.push_back({star.place.x, star.place.y,
                         virtualsky::starRate(sky, star.vMagnitude) * exposure.seconds});
    PlainSensor sensor;
    cv::Mat grey(virtualsky::sensorHeight, virtualsky::sensorWidth, CV_8UC1);
    for (auto _ : state)
        sensor.render(stars, virtualsky::imageSigma(sky),
                      virtualsky::backgroundRate(sky) * exposure.seconds,
                      virtualsky::valuesPerElectron(exposure.gain),
                      virtualsky::readNoise(exposure.gain), grey);
}
} // namespace

BENCHMARK(frame)->Name("camera/frame")->MeasureProcessCPUTime();
BENCHMARK(plainFrame)->Name("camera/plain")->MeasureProcessCPUTime();
