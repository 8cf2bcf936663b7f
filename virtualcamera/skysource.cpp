// SPDX-License-Identifier: MIT
// Makes a frame from the sky file.
#include "virtualcamera/skysource.h"

#include <chrono>

#include "virtualcamera/label.h"

namespace virtualsky
{
SkySource::SkySource(const std::string &path, SkyWatch::Report report)
    : watch(path, std::move(report))
{
}

Behaviour SkySource::behaviour()
{
    const std::lock_guard<std::mutex> lock(mutex);
    const SkyState &state = watch.current();
    return {state.fail, state.cameras, state.unplugged, state.slow, state.unthrottled};
}

SkyState SkySource::settings()
{
    const std::lock_guard<std::mutex> lock(mutex);
    return watch.current();
}

unsigned SkySource::frame(const FrameRequest &request, std::uint8_t *out)
{
    const std::lock_guard<std::mutex> lock(mutex);
    const std::chrono::duration<double> now = std::chrono::system_clock::now().time_since_epoch();
    const Moment moment = clock.at(watch.current(), now.count());
    const std::vector<ImagedStar> &stars = scene.starsAt(moment.state, moment.utcSeconds);
    sensor.render(moment.state, stars, request.area, request.exposure, out);
    if (moment.state.label)
        drawLabel(request.area.width, request.area.height, moment.state.channels, out);
    return moment.state.channels;
}
} // namespace virtualsky
