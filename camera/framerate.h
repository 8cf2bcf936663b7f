// SPDX-License-Identifier: MIT
// How fast do the frames come?
#pragma once

#include "core/relaxed.h"

#include <QMutex>
#include <cstdint>

/// The frame rate in whole frames a second and tenths.
struct FrameRate {
    std::int32_t whole = 0;
    std::int32_t tenths = 0;
};

/// The rate of one frame that came `elapsedMilliseconds` after the one before, both parts truncated
/// toward zero. No time at all is an infinite rate: both parts saturate.
FrameRate frameRate(std::int32_t elapsedMilliseconds);

/// The low 32 bits of a time in milliseconds since the epoch, as a signed number.
std::int32_t cutTo32Bits(std::int64_t milliseconds);

/// later - earlier of two times cut to 32 bits, also across the wrap of the cut.
std::int32_t elapsedBetween(std::int32_t earlier, std::int32_t later);

/// The rate of the latest frame alone, with its lock: the capture thread measures, the GUI reads.
class FrameRateMeter
{
public:
    /// The first interval begins now; the rate shown stays.
    void begin();
    /// A frame has come. `stopped` is read under the lock: a rate that is cleared after the flag
    /// was set stays so.
    void frameCame(const Relaxed<bool> &stopped = false);
    /// Both parts 0.
    void clear() { show({}); }
    void show(FrameRate rate);
    FrameRate rate() const;

private:
    friend class FrameRateMeterProbe; // reads the two times for the tests

    mutable QMutex mutex;
    // Milliseconds since the epoch, cut to 32 bits.
    std::int32_t lastFrameTime = 0, thisFrameTime = 0;
    FrameRate latest;
};
