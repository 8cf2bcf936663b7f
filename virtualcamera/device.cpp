// SPDX-License-Identifier: MIT
// The state of an open camera.
#include "virtualcamera/device.h"

#include <chrono>

namespace virtualsky
{
namespace
{
struct Control {
    std::int32_t number;
    double least, most, initial;
};
enum Index : std::size_t { Gain, ExposureMicroseconds, Speed, UsbTraffic };
// Same order as Index.
constexpr std::array<Control, 4> controls = {
    {{6, 0.0, 200.0, 50.0}, {8, 1.0, 600e6, 200000.0}, {9, 0.0, 2.0, 0.0}, {12, 0.0, 255.0, 30.0}}};

std::optional<std::size_t> indexOf(std::int32_t number)
{
    for (std::size_t i = 0; i < controls.size(); ++i)
        if (controls[i].number == number)
            return i;
    return std::nullopt;
}

double steadySeconds()
{
    const std::chrono::duration<double> now = std::chrono::steady_clock::now().time_since_epoch();
    return now.count();
}
} // namespace

Device::Device(FrameSource &frameSource) : source(frameSource)
{
    for (std::size_t i = 0; i < controls.size(); ++i)
        values[i] = controls[i].initial;
}

bool Device::setReadMode(std::uint32_t mode)
{
    return mode == 0;
}

bool Device::setStreamMode(std::uint8_t mode)
{
    const std::lock_guard<std::mutex> lock(mutex);
    if (mode > 1)
        return false;
    streamMode = mode;
    return true;
}

bool Device::init()
{
    const std::lock_guard<std::mutex> lock(mutex);
    initialised = true;
    return true;
}

bool Device::setBits(std::uint32_t bits)
{
    return bits == 8;
}

bool Device::setBin(std::uint32_t x, std::uint32_t y)
{
    return x == 1 && y == 1;
}

bool Device::setArea(std::uint32_t x, std::uint32_t y, std::uint32_t width, std::uint32_t height)
{
    const std::uint64_t right = std::uint64_t{x} + width;
    const std::uint64_t bottom = std::uint64_t{y} + height;
    if (width == 0 || height == 0 || right > sensorWidth || bottom > sensorHeight)
        return false;
    const std::lock_guard<std::mutex> lock(mutex);
    area = {static_cast<int>(x), static_cast<int>(y), static_cast<int>(width),
            static_cast<int>(height)};
    return true;
}

bool Device::setParameter(std::int32_t control, double value)
{
    const std::optional<std::size_t> index = indexOf(control);
    if (!index || !(value >= controls[*index].least && value <= controls[*index].most))
        return false;
    const std::lock_guard<std::mutex> lock(mutex);
    values[*index] = value;
    return true;
}

std::optional<double> Device::parameter(std::int32_t control) const
{
    const std::optional<std::size_t> index = indexOf(control);
    if (!index)
        return std::nullopt;
    const std::lock_guard<std::mutex> lock(mutex);
    return values[*index];
}

double Device::exposureSeconds() const
{
    return values[ExposureMicroseconds] * 1e-6;
}

double Device::period(const Behaviour &behaviour) const
{
    const double own = behaviour.unthrottled
                           ? 0.0
                           : framePeriod(exposureSeconds(), values[UsbTraffic], values[Speed]);
    return own + behaviour.slowSeconds;
}

bool Device::beginLive()
{
    const Behaviour behaviour = source.behaviour();
    const std::lock_guard<std::mutex> lock(mutex);
    if (!initialised || streamMode != 1)
        return false;
    live = true;
    frameNumber = 0;
    clock.begin(steadySeconds(), period(behaviour));
    return true;
}

bool Device::stopLive()
{
    const std::lock_guard<std::mutex> lock(mutex);
    live = false;
    source.pause();
    return true;
}

bool Device::takeFrame(FrameShape &shape, std::uint8_t *buffer)
{
    const Behaviour behaviour = source.behaviour();
    const std::lock_guard<std::mutex> lock(mutex);
    if (!live || behaviour.unplugged)
        return false;
    clock.setPeriod(period(behaviour));
    if (!clock.take(steadySeconds()))
        return false;
    const unsigned channels =
        source.frame({area, {exposureSeconds(), values[Gain], frameNumber + 1}}, buffer);
    if (channels == 0)
        return false;
    ++frameNumber;
    shape = {static_cast<std::uint32_t>(area.width), static_cast<std::uint32_t>(area.height), 8,
             channels};
    return true;
}
} // namespace virtualsky
