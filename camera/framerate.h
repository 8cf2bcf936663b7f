// SPDX-License-Identifier: MIT
// At what rate do frames arrive?
#pragma once

#include "core/relaxed.h"

#include <QMutex>
#include <cstdint>

/// The frame rate: whole frames per second, and tenths.
struct FrameRate {
    std::int32_t whole = 0;
    std::int32_t tenths = 0;
};

/// The rate if one frame arrives `elapsedMilliseconds` after the previous one, both parts truncated
/// toward zero. For 0 the rate is infinite: both parts saturate.
FrameRate frameRate(std::int32_t elapsedMilliseconds);

/// The low 32 bits of a time in milliseconds since the epoch, as a signed number.
std::int32_t cutTo32Bits(std::int64_t milliseconds);

/// later - earlier, for times truncated by cutTo32Bits; correct across the wraparound.
std::int32_t elapsedBetween(std::int32_t earlier, std::int32_t later);

/// The rate from the latest interval only, with its lock: the capture thread measures, the GUI
/// reads.
class FrameRateMeter
{
public:
    /// Starts the first interval now; the last rate is kept.
    void begin();
    /// Records that a frame has arrived. `stopped` is read under the lock, so that a rate cleared
    /// after the flag was set stays cleared.
    void frameCame(const Relaxed<bool> &stopped = false);
    /// Sets both parts to 0.
    void clear() { show({}); }
    void show(FrameRate rate);
    FrameRate rate() const;

private:
    friend class FrameRateMeterProbe; // reads the two times for the tests

    mutable QMutex mutex;
    // Milliseconds since the epoch, truncated to 32 bits.
    std::int32_t lastFrameTime = 0, thisFrameTime = 0;
    FrameRate latest;
};
