// SPDX-License-Identifier: MIT
// What does each command of quorvandel-camera do?
#pragma once

#include "cameracommand/commandline.h"

/// Exit statuses.
constexpr int succeeded = 0, failed = 1, misused = 2;

int listCameras(const CameraCommandLine &wishes);
int grabFrame(const CameraCommandLine &wishes);
int recordFrames(const CameraCommandLine &wishes);
int checkLens(const CameraCommandLine &wishes);
