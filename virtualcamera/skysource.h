// SPDX-License-Identifier: MIT
// Frames of the virtual sky as set in the sky file.
#pragma once

#include <mutex>
#include <string>

#include "virtualcamera/framesource.h"
#include "virtualcamera/scene.h"
#include "virtualcamera/sensor.h"
#include "virtualcamera/skyclock.h"
#include "virtualcamera/skywatch.h"

namespace virtualsky
{
class SkySource : public FrameSource
{
public:
    /// @param report is called with one line for each new fault of the sky file
    SkySource(const std::string &path, SkyWatch::Report report);

    Behaviour behaviour() override;
    /// The sky file's latest valid settings.
    SkyState settings();
    unsigned frame(const FrameRequest &request, std::uint8_t *out) override;

private:
    std::mutex mutex; // guards everything below
    SkyWatch watch;
    SkyClock clock;
    Scene scene;
    Sensor sensor;
};
} // namespace virtualsky
