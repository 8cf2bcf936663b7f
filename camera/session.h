// SPDX-License-Identifier: MIT
// What do a window and its capture thread share?
#pragma once

#include "camera/camerahandle.h"
#include "camera/camerastate.h"
#include "camera/framerate.h"
#include "camera/latestframe.h"
#include "camera/picturequeue.h"
#include "core/latestsettings.h"
#include "core/sharedstate.h"

/// One camera and its frames: what the capture loop needs. Each member documents which thread may
/// access it, and owns its lock if it needs one. No two locks are ever held at the same time.
struct CameraSession {
    CameraState camera;
    CameraHandle handle;
    LatestFrame latestFrame;
    FrameRateMeter frameRate;
};

/// One camera, its pictures and one alignment by the wizard. Created at the start of the process
/// and passed to all its users, which it outlives.
struct Session : CameraSession {
    PictureQueue frameQueue;     ///< display pictures
    PictureQueue magnifierQueue; ///< pictures of the magnified star, in monitor mode
    OverlayFlags overlayFlags;
    AlignmentPoints alignmentPoints;
    MonitorPositions monitorPositions;
    RefractionSettings refraction;
    LatestSettings latestSettings; ///< for a thread that saves them in place of the GUI's
};
