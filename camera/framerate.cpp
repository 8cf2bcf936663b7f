// SPDX-License-Identifier: MIT
// Measures the frame rate.
#include "camera/framerate.h"

#include "core/locker.h"
#include "core/saturate.h"

#include <QDateTime>

namespace
{
std::int32_t now()
{
    return cutTo32Bits(QDateTime::currentMSecsSinceEpoch());
}
} // namespace

FrameRate frameRate(std::int32_t elapsedMilliseconds)
{
    const double rate = 1000.0 / elapsedMilliseconds;
    const std::int32_t whole = saturatingInt(rate);
    const std::int64_t tenths = std::int64_t(saturatingInt(rate * 10)) - std::int64_t(whole) * 10;
    return {whole, saturatingInt(double(tenths))};
}

std::int32_t cutTo32Bits(std::int64_t milliseconds)
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(milliseconds));
}

std::int32_t elapsedBetween(std::int32_t earlier, std::int32_t later)
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(later) -
                                     static_cast<std::uint32_t>(earlier));
}

void FrameRateMeter::begin()
{
    const Locker lock(mutex);
    lastFrameTime = now();
}

void FrameRateMeter::frameCame(const Relaxed<bool> &stopped)
{
    const Locker lock(mutex);
    if (stopped)
        return;
    thisFrameTime = now();
    latest = frameRate(elapsedBetween(lastFrameTime, thisFrameTime));
    lastFrameTime = now();
}

void FrameRateMeter::show(FrameRate rate)
{
    const Locker lock(mutex);
    latest = rate;
}

FrameRate FrameRateMeter::rate() const
{
    const Locker lock(mutex);
    return latest;
}
