// SPDX-License-Identifier: MIT
// Which camera does the command line ask for?
#pragma once

/// Takes `--camera ADDRESS` and `--camera=ADDRESS` from the arguments of `main`, and asks the
/// shipped library for that camera: sky, indi://HOST[:PORT]/DEVICE or files:PATTERN. The last one
/// counts. Call it before any thread starts and before the camera library is loaded.
/// @return false if there is no address or it is none; one line on standard error says so. The
/// program then ends with status 2.
bool takeCameraOption(int &argc, char *argv[]);

/// Lines for `--help` about the option, as wide as 80 columns.
extern const char *const cameraOptionHelp;
