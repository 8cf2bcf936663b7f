// SPDX-License-Identifier: MIT
// What do the window, its dialogs and the capture thread share?
#pragma once

#include "camera/camerahandle.h"
#include "camera/camerastate.h"
#include "camera/framerate.h"
#include "camera/latestframe.h"
#include "camera/picturequeue.h"
#include "core/sharedstate.h"

/// One camera, its frames and one alignment. Made where the process begins and passed to all that
/// use it, so it outlives them. Each member says which thread may touch it, and owns its lock where
/// it needs one; no two locks are ever held together.
struct Session {
    CameraState camera;
    CameraHandle handle;
    LatestFrame latestFrame;
    FrameRateMeter frameRate;
    PictureQueue frameQueue;     ///< display pictures
    PictureQueue magnifierQueue; ///< pictures of the magnified star, in monitor mode
    OverlayFlags overlayFlags;
    AlignmentPoints alignmentPoints;
    MonitorPositions monitorPositions;
    RefractionSettings refraction;
};
