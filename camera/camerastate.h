// SPDX-License-Identifier: MIT
// What is known about the camera, and which thread may access which part of it?
#pragma once

#include "camera/frameformat.h"
#include "camera/veldix.h"
#include "core/relaxed.h"

#include <cstdint>

/// The state of the camera. For the GUI thread only, except where a comment says otherwise.
struct CameraState {
    Relaxed<bool> sdkReady;        ///< InitVELDIXResource succeeded
    Relaxed<bool> cameraConnected; ///< a camera is open and ready; the capture thread reads it
    char cameraId[maxIdSize] = {}; ///< NUL-terminated ID of the camera found
    double exposure = 0;           ///< microseconds
    double gain = 0;               ///< camera units
    double speed = 0;              ///< 0 to 2
    double usbTraffic = 0;         ///< 0 to 255
    std::uint32_t bits = 0;
    std::uint32_t binX = 0, binY = 0;
    std::uint32_t streamMode = 0; ///< 1 = live video; only the low byte is passed on
    std::uint32_t roiX = 0, roiY = 0, roiWidth = 0, roiHeight = 0;

    /// BeginVELDIXLive has succeeded for this capture loop. The capture thread writes, the GUI
    /// reads.
    Relaxed<bool> liveMode;

    // The format of the latest frame: the capture thread writes, the GUI reads.
    Relaxed<std::uint32_t> frameWidth, frameHeight, frameBpp, frameChannels;
};

/// Sets the values used before a camera is connected.
void setCameraDefaults(CameraState &state);
