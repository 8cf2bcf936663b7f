// SPDX-License-Identifier: MIT
// What do a person's hands reach: a mount under the virtual sky, and the assistant's word on it?
#pragma once

#include "assistant/guide.h"
#include "virtualcamera/scene.h"
#include "virtualcamera/sensor.h"
#include "virtualcamera/skystate.h"
#include "virtualcamera/truth.h"

#include <cstdint>

/// The next frame's status, and the sky that it was taken of.
class MountOnSky
{
public:
    virtual ~MountOnSky() = default;

    /// The assistant's status of the next frame.
    virtual assistant::Status next() = 0;
    /// Seconds of camera time so far.
    virtual double seconds() const = 0;
    virtual const virtualsky::SkyState &sky() const = 0;
    /// Turns knobs: the sky from now on.
    virtual void setSky(const virtualsky::SkyState &sky) = 0;
    /// The camera's own truth at this moment.
    virtual virtualsky::Truth truth() const = 0;
};

/// Frames painted in this process, as fast as they come, with a time of their own.
class PaintedMount : public MountOnSky
{
public:
    PaintedMount(const virtualsky::SkyState &start, const assistant::Settings &settings);

    assistant::Status next() override;
    double seconds() const override { return elapsed; }
    const virtualsky::SkyState &sky() const override { return state; }
    void setSky(const virtualsky::SkyState &sky) override { state = sky; }
    virtualsky::Truth truth() const override;

    assistant::Guide &guide() { return engine; }
    /// Lets time pass without a frame.
    void wait(double duration) { elapsed += duration; }
    /// The computer's clock against the sky's, seconds.
    void setClockError(double by) { clockError = by; }
    /// Whether the guide is told that the computer's clock is behind.
    void setClockBehind(bool on) { clockBehind = on; }
    /// Whether the guide is told that the computer's clock is synchronised.
    void setClockSynchronised(bool on) { clockSynchronised = on; }
    void setExposure(double microseconds) { exposure = microseconds; }
    /// The stars are drawn out along x by a Gaussian of so many pixels (one sigma); 0: not at all.
    void setTrail(double pixels) { trail = pixels; }
    /// Processor time of the last frame's way to its status, seconds.
    double lastLatency() const { return latency; }
    /// The next observation without a frame.
    assistant::Status silence();
    cv::Mat lastFrame() const { return frame; }

private:
    double utc() const;

    virtualsky::SkyState state;
    assistant::Guide engine;
    virtualsky::Scene scene;
    virtualsky::Sensor sensor;
    cv::Mat frame;
    double elapsed = 0.0;
    double clockError = 0.0;
    bool clockBehind = false;
    bool clockSynchronised = true;
    double exposure = 200000.0; // microseconds
    double trail = 0.0;         // pixels
    double latency = 0.0;
    std::uint64_t number = 0;
};
