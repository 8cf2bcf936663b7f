// SPDX-License-Identifier: MIT
// When is the next frame ready?
#pragma once

namespace virtualsky
{
/// Seconds from the start of one exposure to the start of the next: exposure plus read-out, at
/// least 1/30 s. The read-out takes 10 ms plus 0.11 ms per unit of USB traffic at speed 0, three
/// quarters of that at speed 1, half of it at speed 2.
double framePeriod(double exposureSeconds, double usbTraffic, double speed);

/// Timing of a camera that exposes continuously and keeps the latest frame until it is fetched.
/// Times are seconds of any steady clock.
class FrameClock
{
public:
    /// Starts live mode and the first exposure.
    void begin(double now, double period);
    /// Sets the frame period, including that of the running exposure. With 0 a frame is always
    /// ready.
    void setPeriod(double period);
    /// True once per finished frame; of several missed frames only the latest counts.
    bool take(double now);

private:
    double started = 0.0; // of the running exposure
    double length = 1.0;
};
} // namespace virtualsky
