// SPDX-License-Identifier: MIT
// When is the next frame ready?
#pragma once

namespace virtualsky
{
/// Seconds from the start of one exposure to the start of the next: exposure and read-out, at least
/// 1/30 s. The read-out takes 10 ms and 0.11 ms for every unit of USB traffic at speed 0, three
/// quarters of that at speed 1, half of it at speed 2.
double framePeriod(double exposureSeconds, double usbTraffic, double speed);

/// A camera that exposes one frame after another and keeps the latest until it is fetched.
/// Times are seconds of any steady clock.
class FrameClock
{
public:
    /// Live mode begins: the first exposure starts.
    void begin(double now, double period);
    /// From now on frames take `period`, the running exposure included.
    void setPeriod(double period);
    /// True once for every finished frame; of several missed ones only the latest is given.
    bool take(double now);

private:
    double started = 0.0; // of the running exposure
    double length = 1.0;
};
} // namespace virtualsky
