// SPDX-License-Identifier: MIT
// The state before a camera is connected.
#include "camera/camerastate.h"

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
}
