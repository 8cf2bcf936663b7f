// SPDX-License-Identifier: MIT
// Which times has the frame rate been measured from?
#pragma once

#include "camera/framerate.h"
#include "core/locker.h"

/// A view of one meter's private members, read under its lock; valid as long as the meter.
class FrameRateMeterProbe
{
public:
    explicit FrameRateMeterProbe(const FrameRateMeter &probed) : meter(probed) {}

    /// Milliseconds since the epoch, cut to 32 bits; 0 before the first measurement.
    std::int32_t lastFrameTime() const
    {
        const Locker lock(meter.mutex);
        return meter.lastFrameTime;
    }
    /// From the end of the last interval to the start of the next, milliseconds.
    std::int32_t betweenIntervals() const
    {
        const Locker lock(meter.mutex);
        return elapsedBetween(meter.thisFrameTime, meter.lastFrameTime);
    }

private:
    const FrameRateMeter &meter;
};
