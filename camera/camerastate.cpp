// SPDX-License-Identifier: MIT
// The process-wide camera record and the reckoning of the frame rate.
#include "camera/camerastate.h"

#include "geometry/saturate.h"

CameraState cameraState;
Relaxed<void *> cameraHandle;
QMutex handleMutex;
QMutex fpsMutex;

void setCameraDefaults(CameraState &state)
{
    state.sdkReady = false;
    state.cameraConnected = false;
    state.liveMode = false;
    state.exposure = 20000.0;
    state.gain = 1.0;
    state.speed = 0.0;
    state.usbTraffic = 30.0;
    state.bits = 8;
    state.binX = 1;
    state.binY = 1;
    state.streamMode = 1;
    state.roiX = 0;
    state.roiY = 0;
    state.roiWidth = frameWidthDefault;
    state.roiHeight = frameHeightDefault;
    for (auto *buffer : {&state.frameBuffer, &state.latestBuffer})
        if (!*buffer)
            *buffer = std::make_unique<FrameBuffer>();
}

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
